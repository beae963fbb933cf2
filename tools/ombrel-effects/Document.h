#ifndef OMBREL_EFFECTS_TOOL_DOCUMENT_H
#define OMBREL_EFFECTS_TOOL_DOCUMENT_H

#include "EffectReader.h"
#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <string>

namespace Ombrel::EffectsTool
{

/// The JSON text of `tree` with a line end, as all commands print it.
/// @throws ToolError `BadInput` if a value has no JSON form; the message begins with `subject`
std::string TextOf(const PropertyTree& tree, const std::string& subject, bool nonFinite);

/// Reads a file, or the standard input for "-".
/// @throws ToolError `UsageOrFile`, or `BadInput` if it is not JSON
PropertyTree ReadJsonFile(const std::string& file, bool nonFinite);

/// One stored effect or a list of stored effects, as in the file. `Read` lets the library read one of them.
class Document
{
public:
    /// The element that a path of the user leads to, and the rest of the path within it.
    struct Target
    {
        std::size_t index;
        Path rest;
    };

    /// Reads a file as `ReadJsonFile`. The elements must be maps or null; their content is not checked.
    /// @throws ToolError as `ReadJsonFile`, and `BadInput` if it is neither an effect nor a list of effects
    static Document Load(const std::string& file, bool nonFinite);

    std::size_t size() const { return m_isList ? m_tree.getList().size() : 1; }
    PropertyTree& operator[](std::size_t index) { return m_isList ? m_tree.getList()[index] : m_tree; }
    const PropertyTree& operator[](std::size_t index) const { return m_isList ? m_tree.getList()[index] : m_tree; }

    /// The path of an element; empty if the file is a single effect.
    Path PathOf(std::size_t index) const;

    /// @throws ToolError `NotAsAsked` if there is no such element
    Target Locate(const Path& path) const;

    /// The effect of an element, null for null.
    /// @throws ToolError `BadInput` if the library refuses it
    EffectPtr Read(std::size_t index) const;

    /// The beginning of a message about a place: "file: path: ".
    std::string Where(std::size_t index, PathView place = {}) const;

    bool isList() const { return m_isList; }
    std::string Text() const { return TextOf(m_tree, m_name + ":", m_nonFinite); }
    std::string Text(const PropertyTree& part) const { return TextOf(part, m_name + ":", m_nonFinite); }
    bool nonFinite() const { return m_nonFinite; }

private:
    Document(std::string name, PropertyTree tree, bool nonFinite);

    void CheckElements() const;

    std::string m_name;
    PropertyTree m_tree;
    bool m_isList;
    bool m_nonFinite;
};

} // namespace Ombrel::EffectsTool

#endif
