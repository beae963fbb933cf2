#include "Document.h"

#include "Proc/Settings/StoredKeys.h"
#include "PropertyPath.h"
#include "PropertyTreeJson/MessageText.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "TextFile.h"
#include "ToolError.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Ombrel::EffectsTool
{
namespace
{

constexpr unsigned INDENT = 2;
const std::string NAME{Proc::StoredKeys::NAME};
const std::string EFFECTS = "effects";
const std::string ID = "id";

// How many bytes indenting adds to a text: a line end and spaces for each value and each closing bracket. It may add six
// times what a usual file has; a text of brackets alone would become a hundred times as long.
bool IsIndentingCheap(const PropertyTree& tree, std::size_t plainSize)
{
    constexpr std::size_t deepest = 64; // deeper lines are not indented further
    std::size_t added = 0;
    struct Part
    {
        const PropertyTree* tree;
        std::size_t depth;
    };
    std::vector<Part> pending{{&tree, 0}};
    while (!pending.empty())
    {
        const Part part = pending.back();
        pending.pop_back();
        const std::size_t line = 1 + INDENT * std::min(part.depth + 1, deepest);
        const auto add = [&](const PropertyTree& child)
        {
            added += line + 1;
            if (child.isMap() || child.isList())
            {
                pending.push_back({&child, part.depth + 1});
                added += line;
            }
        };
        if (part.tree->isMap())
        {
            std::ranges::for_each(part.tree->getMap(), [&](const auto& entry) { add(entry.second); });
        }
        else if (part.tree->isList())
        {
            std::ranges::for_each(part.tree->getList(), add);
        }
    }
    return added <= 6 * plainSize + 65536;
}

} // namespace

std::string OnOneLine(const PropertyTree& tree, const std::string& subject, bool nonFinite)
{
    try
    {
        const JsonWriteOptions options{.nonFiniteAsText = nonFinite};
        std::string text = WriteJson(tree, options);
        if (WriteJson(ReadJson(text, {.nonFiniteAsText = nonFinite}), options) != text)
        {
            throw ToolError(ExitCode::BadInput, subject + " would not be read as it was written");
        }
        return text;
    }
    catch (const JsonWriteError& error)
    {
        throw ToolError(ExitCode::BadInput, subject + " cannot be written as JSON: " + error.what());
    }
    catch (const JsonError& error)
    {
        throw ToolError(ExitCode::BadInput, subject + " could not be read again: " + error.what());
    }
}

std::string Indented(const PropertyTree& tree, const std::string& subject, bool nonFinite)
{
    std::string text = OnOneLine(tree, subject, nonFinite);
    if (IsIndentingCheap(tree, text.size()))
    {
        text = WriteJson(tree, {.nonFiniteAsText = nonFinite, .indent = INDENT});
    }
    return text + '\n';
}

Document Document::Load(const std::string& file, const ReadingOptions& options)
{
    return {file, ReadTextFile(file, options.maxBytes), options};
}

Document Document::OfLine(const std::string& file, std::string text, std::size_t line, const ReadingOptions& options)
{
    return {file, std::move(text), options, line};
}

Document::Document(const std::string& file, std::string text, const ReadingOptions& options)
    : Document(file, std::move(text), options, std::nullopt)
{
}

Document::Document(const std::string& file, std::string text, const ReadingOptions& options, std::optional<std::size_t> line)
    : m_name(NameOfFile(file)), m_text(std::move(text)), m_options(options), m_line(line)
{
    try
    {
        m_tree = ReadJson(m_text, {.nonFiniteAsText = options.nonFinite});
    }
    catch (const JsonError& error)
    {
        const std::string message = error.what();
        throw ToolError(ExitCode::BadInput,
                        m_name + ":" + std::to_string(m_line.value_or(error.line())) + message.substr(message.find(':')));
    }
    if (m_line && m_tree.isMap() && !m_tree.contains(NAME) && m_tree.contains(EFFECTS))
    {
        PropertyTree tree = std::move(m_tree[EFFECTS]);
        m_around = std::move(m_tree);
        m_tree = std::move(tree);
    }
}

JsonPlace Document::PlaceOf(const Inspection::Path& path) const
{
    if (!m_places)
    {
        m_places.emplace(m_text, JsonReadOptions{.nonFiniteAsText = m_options.nonFinite});
    }
    const JsonPlaces::Value top = m_around ? *m_places->Below(JsonPlaces::Value::Top, EFFECTS) : JsonPlaces::Value::Top;
    const auto follow = [this](JsonPlaces::Value from, const Inspection::Path& part) { return ValueAt(part.OwnSteps(), from); };
    const JsonPlace place = m_places->PlaceOf(ValueAt(path.OwnSteps(), m_starts.Find(path.Start(), top, follow)));
    return {.line = m_line.value_or(place.line), .column = place.column};
}

// The last value on the way that is there.
JsonPlaces::Value Document::ValueAt(std::span<const Inspection::PathStep> steps, JsonPlaces::Value value) const
{
    for (const Inspection::PathStep& step : steps)
    {
        const std::size_t* index = std::get_if<std::size_t>(&step);
        const auto below = m_places->Below(value, index ? std::to_string(*index) : std::get<std::string>(step));
        if (!below)
        {
            break;
        }
        value = *below;
    }
    return value;
}

std::string Document::TextOf(const Inspection::Path& path) const
{
    const std::string text = MessageText::Printable(path.ToText());
    return !m_around ? text : text.empty() ? EFFECTS : EFFECTS + "/" + text;
}

std::string Document::TextWith(const PropertyTree& tree) const
{
    const std::string subject = m_name + ":";
    if (!m_line)
    {
        return Indented(tree, subject, m_options.nonFinite);
    }
    if (!m_around)
    {
        return OnOneLine(tree, subject, m_options.nonFinite) + '\n';
    }
    PropertyTree whole = *m_around;
    whole[EFFECTS] = tree;
    return OnOneLine(whole, subject, m_options.nonFinite) + '\n';
}

const PropertyTree* Document::Id() const
{
    return m_around && m_around->contains(ID) ? &(*m_around)[ID] : nullptr;
}

} // namespace Ombrel::EffectsTool
