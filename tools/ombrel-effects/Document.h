#ifndef OMBREL_EFFECTS_TOOL_DOCUMENT_H
#define OMBREL_EFFECTS_TOOL_DOCUMENT_H

#include "Inspection/Finding.h"
#include "Inspection/SharedPaths.h"
#include "PropertyTree/PropertyTree.h"
#include "PropertyTreeJson/JsonPlaces.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace Ombrel::EffectsTool
{

struct ReadingOptions
{
    bool nonFinite = false; // floats that are no finite numbers are texts
    std::size_t maxBytes = DEFAULT_MAX_BYTES;

    static constexpr std::size_t DEFAULT_MAX_BYTES = std::size_t{256} << 20;
};

/// The JSON text of `tree`, which has been read back, without a line end.
/// @param subject the beginning of a message
/// @throws ToolError `BadInput` if a value has no JSON form, or the text could not be read again
std::string OnOneLine(const PropertyTree& tree, const std::string& subject, bool nonFinite);

/// The same as commands print it: indented unless that would make a small file large, and with a line end.
std::string Indented(const PropertyTree& tree, const std::string& subject, bool nonFinite);

/// A JSON file: one stored effect or a list of them, whatever stands there.
class Document
{
public:
    /// Reads a file, or the standard input for "-".
    /// @throws ToolError `File`, or `BadInput` if it is not JSON
    static Document Load(const std::string& file, const ReadingOptions& options);

    /// The same from a text that has been read already.
    /// @throws ToolError `BadInput`
    Document(const std::string& file, std::string text, const ReadingOptions& options);

    /// One line of a file of JSON Lines: an effect, a list of effects, or a map with either under "effects" and with what else
    /// it likes.
    /// @throws ToolError `BadInput`
    static Document OfLine(const std::string& file, std::string text, std::size_t line, const ReadingOptions& options);

    const PropertyTree& Tree() const noexcept { return m_tree; }
    bool IsList() const noexcept { return m_tree.isList(); }

    /// How many effects stand in it, and each of them.
    std::size_t Size() const { return IsList() ? m_tree.getList().size() : 1; }
    const PropertyTree& operator[](std::size_t index) const { return IsList() ? m_tree.getList()[index] : m_tree; }

    /// The name of the file for messages.
    const std::string& Name() const noexcept { return m_name; }

    /// Where the value stands, or for one that is missing what is around it.
    JsonPlace PlaceOf(const Inspection::Path& path) const;

    /// The path in the file, for messages: escaped, empty for the root.
    std::string TextOf(const Inspection::Path& path) const;

    /// The file with this tree in place of its own.
    /// @throws ToolError `BadInput` as `TextOf`
    std::string TextWith(const PropertyTree& tree) const;

    /// What is handed through beside "effects", or null.
    const PropertyTree* Id() const;
    const ReadingOptions& Options() const noexcept { return m_options; }

private:
    Document(const std::string& file, std::string text, const ReadingOptions& options, std::optional<std::size_t> line);

    JsonPlaces::Value ValueAt(std::span<const Inspection::PathStep> steps, JsonPlaces::Value value) const;

    std::string m_name;
    std::string m_text;
    ReadingOptions m_options;
    std::optional<std::size_t> m_line;    // of JSON Lines
    std::optional<PropertyTree> m_around; // the map that has the effects
    PropertyTree m_tree;
    // Once places have been asked for.
    mutable std::optional<JsonPlaces> m_places;
    mutable Inspection::SharedPaths<JsonPlaces::Value> m_starts;
};

} // namespace Ombrel::EffectsTool

#endif
