#ifndef OMBREL_EFFECTS_TOOL_DOCUMENT_H
#define OMBREL_EFFECTS_TOOL_DOCUMENT_H

#include "EffectReader.h"
#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <string>

namespace Ombrel::EffectsTool
{

/// The text of `tree` with a line end, as all commands print it. A message begins with `subject`.
/// @throws ToolError `BadInput` if a value has no JSON form
std::string TextOf(const PropertyTree& tree, const std::string& subject, bool nonFinite);

/// One stored effect or a list of them, as the file has it: nothing is read by the library until it is asked for.
class Document
{
public:
    /// Where a path of the user leads: an element, and a place within it.
    struct Target
    {
        std::size_t index;
        Path rest;
    };

    /// Reads a file, or the standard input for "-". The elements are maps or null; what they hold is not looked at.
    /// @throws ToolError `UsageOrFile`, or `BadInput` if it is no JSON or no effect or list of effects
    static Document Load(const std::string& file, bool nonFinite);

    std::size_t size() const { return m_isList ? m_tree.getList().size() : 1; }
    PropertyTree& operator[](std::size_t index) { return m_isList ? m_tree.getList()[index] : m_tree; }
    const PropertyTree& operator[](std::size_t index) const { return m_isList ? m_tree.getList()[index] : m_tree; }

    /// The path of an element; empty for the only one.
    Path PathOf(std::size_t index) const;

    /// @throws ToolError `NotAsAsked` if there is no such element
    Target Locate(const Path& path) const;

    /// The effect of an element, null for null.
    /// @throws ToolError `BadInput` if the library refuses it
    EffectPtr Read(std::size_t index) const;

    /// "file: path: ", what a message on a place begins with.
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
