#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_PLACES_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_PLACES_H

#include "OmbrelExport.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Ombrel
{

class JsonPlaceTable;

/// A place in a text, counted as in `JsonError`.
struct JsonPlace
{
    std::size_t line;   // from 1
    std::size_t column; // from 1, in bytes

    bool operator==(const JsonPlace&) const = default;
};

/// Where each value of a text stands. It takes more memory than the tree of the text, so it is made when there is something to
/// say about the text. Any number of threads may search at once.
class OMBREL_JSON_API JsonPlaces
{
public:
    /// Reads `text` as `ReadJson` does. No reference to it is kept.
    /// @throws JsonError as `ReadJson`
    explicit JsonPlaces(std::string_view text, const JsonReadOptions& options = {});

    JsonPlaces(JsonPlaces&& other) noexcept;
    JsonPlaces& operator=(JsonPlaces&& other) noexcept;
    ~JsonPlaces();

    /// A value of the text, to be used with these places alone.
    enum class Value : std::size_t
    {
        Top,
    };

    /// The value that a key of a map or an index of a list leads to, the index as a decimal number; nothing if there is none.
    std::optional<Value> Below(Value value, std::string_view step) const;

    /// Where the value begins.
    JsonPlace PlaceOf(Value value) const;

    /// Where the value begins that `steps` lead to: keys of maps, and indices of lists from 0 as decimal numbers; no step leads
    /// to the top value. Nothing if there is no such value.
    std::optional<JsonPlace> Find(std::span<const std::string> steps) const;

private:
    std::unique_ptr<const JsonPlaceTable> m_table;
};

} // namespace Ombrel

#endif
