#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_PLACE_TABLE_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_PLACE_TABLE_H

#include "PropertyTreeJson/JsonPlaces.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel
{

/// The values of a text with their offsets. A reader fills it in the order of the text.
class JsonPlaceTable
{
public:
    void AddKey(std::string_view key) { m_key = key; }
    void AddValue(std::size_t offset);

    /// The value that was added last is a map or list and begins.
    void Open(bool isMap);
    void Close() { m_open.pop_back(); }

    /// The text has ended.
    void Finish(std::string_view text);

    /// The number of the value below the one with the number `parent`, in the order of the text.
    std::optional<std::size_t> Below(std::size_t parent, std::string_view step) const;
    JsonPlace PlaceOf(std::size_t value) const;

private:
    // The one value of the text that has no parent is its own.
    struct Value
    {
        std::size_t parent;
        std::size_t index; // in a list; 0 in a map
        std::string key;   // in a map
        std::size_t offset;
        bool isList = false;
    };

    struct Container
    {
        std::size_t value;
        std::size_t count = 0; // of its values so far, in a list
    };

    std::vector<Value> m_values;
    std::vector<std::size_t> m_sorted; // places in `m_values`, by the parent and the step below it
    std::vector<std::size_t> m_lines;  // where they start
    std::vector<Container> m_open;
    std::string m_key; // of the next value in a map
};

/// The tree of a text; fills `places` unless it is null.
PropertyTree ReadJsonWithPlaces(std::string_view text, const JsonReadOptions& options, JsonPlaceTable* places);

} // namespace Ombrel

#endif
