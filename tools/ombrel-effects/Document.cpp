#include "Document.h"

#include "PropertyTreeJson/PropertyTreeJson.h"
#include "TextFile.h"
#include "ToolError.h"
#include "Values.h"

#include <utility>
#include <variant>

namespace Ombrel::EffectsTool
{

std::string TextOf(const PropertyTree& tree, const std::string& subject, bool nonFinite)
{
    try
    {
        return WriteJson(tree, {.nonFiniteAsText = nonFinite, .indent = 2}) + '\n';
    }
    catch (const JsonWriteError& error)
    {
        throw ToolError(ExitCode::BadInput, subject + " cannot be written as JSON: " + error.what());
    }
}

PropertyTree ReadJsonFile(const std::string& file, bool nonFinite)
{
    const std::string text = ReadTextFile(file);
    try
    {
        return ReadJson(text, {.nonFiniteAsText = nonFinite});
    }
    catch (const JsonError& error)
    {
        throw ToolError(ExitCode::BadInput, NameOfFile(file) + ":" + error.what());
    }
}

Document::Document(std::string name, PropertyTree tree, bool nonFinite)
    : m_name(std::move(name)), m_tree(std::move(tree)), m_isList(m_tree.isList()), m_nonFinite(nonFinite)
{
}

Document Document::Load(const std::string& file, bool nonFinite)
{
    Document document(NameOfFile(file), ReadJsonFile(file, nonFinite), nonFinite);
    document.CheckElements();
    return document;
}

void Document::CheckElements() const
{
    if (!m_isList && !m_tree.isMap())
    {
        throw ToolError(ExitCode::BadInput,
                        m_name + ": found " + KindOf(m_tree) + ", expected an effect (a map) or a list of effects");
    }
    for (std::size_t index = 0; index < size(); ++index)
    {
        const PropertyTree& element = (*this)[index];
        if (!element.isMap() && !element.isNull())
        {
            throw ToolError(ExitCode::BadInput,
                            Where(index) + "found " + KindOf(element) + ", expected an effect (a map) or null");
        }
    }
}

Path Document::PathOf(std::size_t index) const
{
    return m_isList ? Path{std::to_string(index)} : Path{};
}

std::string Document::Where(std::size_t index, PathView place) const
{
    Path path = PathOf(index);
    path.insert(path.end(), place.begin(), place.end());
    return m_name + ": " + (path.empty() ? "" : PathText(path) + ": ");
}

Document::Target Document::Locate(const Path& path) const
{
    if (!m_isList)
    {
        return {0, path};
    }
    const std::optional<std::size_t> index = IndexOf(path.front());
    if (!index || *index >= size())
    {
        throw ToolError(ExitCode::NotAsAsked,
                        m_name + ": " + PathText(PathView(path).first(1)) + ": no such effect, " + ExpectedBelow(m_tree));
    }
    return {*index, Path(path.begin() + 1, path.end())};
}

EffectPtr Document::Read(std::size_t index) const
{
    const PropertyTree& element = (*this)[index];
    auto result = ReadEffect(element);
    if (const Refusal* refusal = std::get_if<Refusal>(&result))
    {
        const PropertyTree& value = At(element, refusal->place);
        throw ToolError(ExitCode::BadInput,
                        Where(index, refusal->place) + "cannot read " + ShownInBrief(value) + ": " + refusal->reason);
    }
    return std::get<EffectPtr>(std::move(result));
}

} // namespace Ombrel::EffectsTool
