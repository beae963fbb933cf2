#include "PropertyPath.h"

#include "PropertyTreeJson/MessageText.h"
#include "Values.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <variant>

namespace Ombrel::EffectsTool
{
namespace
{

std::string Unescaped(std::string_view key)
{
    std::string result;
    for (std::size_t i = 0; i < key.size(); ++i)
    {
        const bool isEscape = key[i] == '~' && i + 1 < key.size() && (key[i + 1] == '0' || key[i + 1] == '1');
        result += !isEscape ? key[i] : key[++i] == '0' ? '~' : '/';
    }
    return result;
}

bool IsSame(const Inspection::PathStep& step, const std::string& text)
{
    const std::size_t* index = std::get_if<std::size_t>(&step);
    return index ? IndexOf(text) == *index : std::get<std::string>(step) == text;
}

// Whether the steps of a path are the same as these, up to the end of the shorter one.
bool AreFirstSame(const Inspection::Path& path, std::size_t count, PathView steps)
{
    std::size_t end = count; // of the part
    for (const Inspection::Path* part = &path; part; part = part->Start().get())
    {
        const std::vector<Inspection::PathStep>& own = part->OwnSteps();
        const std::size_t begin = end - own.size();
        for (std::size_t step = begin; step < std::min(end, steps.size()); ++step)
        {
            if (!IsSame(own[step - begin], steps[step]))
            {
                return false;
            }
        }
        end = begin;
    }
    return true;
}

} // namespace

Path ParsePath(std::string_view text)
{
    Path path;
    for (;;)
    {
        const std::size_t end = text.find('/');
        path.push_back(Unescaped(text.substr(0, end)));
        if (end == std::string_view::npos)
        {
            return path;
        }
        text.remove_prefix(end + 1);
    }
}

std::string PathText(PathView path)
{
    MessageText::Path text;
    for (const std::string& step : path)
    {
        text.Add(step);
    }
    return MessageText::Printable(text.Text());
}

Path StepsOf(const Inspection::Path& path)
{
    Path steps;
    for (Inspection::PathStep& step : path.Steps())
    {
        const std::size_t* index = std::get_if<std::size_t>(&step);
        steps.push_back(index ? std::to_string(*index) : std::move(std::get<std::string>(step)));
    }
    return steps;
}

std::size_t CountSteps(const Inspection::Path& path)
{
    std::size_t count = 0;
    for (const Inspection::Path* part = &path; part; part = part->Start().get())
    {
        count += part->OwnSteps().size();
    }
    return count;
}

bool StartsWith(PathView path, PathView beginning)
{
    return beginning.size() <= path.size() && std::ranges::equal(path.first(beginning.size()), beginning);
}

bool StartsWith(PathView path, const Inspection::Path& beginning)
{
    const std::size_t count = CountSteps(beginning);
    return count <= path.size() && AreFirstSame(beginning, count, path);
}

bool StartsWith(const Inspection::Path& path, PathView beginning)
{
    const std::size_t count = CountSteps(path);
    return beginning.size() <= count && AreFirstSame(path, count, beginning);
}

std::string PathTexts(const std::vector<std::string>& steps)
{
    std::string texts;
    for (const std::string& step : steps)
    {
        texts += (texts.empty() ? "" : ", ") + PathText(Path{step});
    }
    return texts;
}

std::optional<std::size_t> IndexOf(std::string_view step)
{
    return MessageText::IndexOf(step);
}

const PropertyTree* FindChild(const PropertyTree& tree, const std::string& step)
{
    if (tree.isList())
    {
        const std::optional<std::size_t> index = IndexOf(step);
        return index && *index < tree.getList().size() ? &tree.getList()[*index] : nullptr;
    }
    return tree.contains(step) ? &tree[step] : nullptr;
}

const PropertyTree* Find(const PropertyTree& tree, PathView path)
{
    const PropertyTree* found = &tree;
    for (const std::string& step : path)
    {
        found = FindChild(*found, step);
        if (!found)
        {
            return nullptr;
        }
    }
    return found;
}

PropertyTree* Find(PropertyTree& tree, PathView path)
{
    return const_cast<PropertyTree*>(Find(static_cast<const PropertyTree&>(tree), path));
}

const PropertyTree& At(const PropertyTree& tree, PathView path)
{
    if (const PropertyTree* found = Find(tree, path))
    {
        return *found;
    }
    throw std::logic_error("a path leads nowhere: " + PathText(path));
}

PropertyTree& At(PropertyTree& tree, PathView path)
{
    return const_cast<PropertyTree&>(At(static_cast<const PropertyTree&>(tree), path));
}

std::vector<std::string> StepsOf(const PropertyTree& tree)
{
    std::vector<std::string> steps;
    if (tree.isList())
    {
        for (std::size_t i = 0; i < tree.getList().size(); ++i)
        {
            steps.push_back(std::to_string(i));
        }
    }
    else if (tree.isMap())
    {
        for (const auto& [key, child] : tree.getMap())
        {
            steps.push_back(key);
        }
    }
    return steps;
}

std::string ExpectedBelow(const PropertyTree& tree)
{
    if (tree.isNull() || tree.isScalar())
    {
        return std::string("there is nothing below ") + KindOf(tree);
    }
    const std::vector<std::string> steps = StepsOf(tree);
    if (steps.empty())
    {
        return std::string(tree.isList() ? "the list" : "the map") + " is empty";
    }
    return "expected " +
           (tree.isList() ? "an index from 0 to " + std::to_string(steps.size() - 1) : "one of " + PathTexts(steps));
}

Path Below(PathView path, const std::string& step)
{
    Path longer(path.begin(), path.end());
    longer.push_back(step);
    return longer;
}

} // namespace Ombrel::EffectsTool
