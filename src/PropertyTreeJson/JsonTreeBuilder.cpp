#include "PropertyTreeJson/JsonTreeBuilder.h"

#include "PropertyTreeJson/MessageText.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <utility>

namespace Ombrel
{
namespace
{

// Most texts are no larger than one effect's, for which this is enough. It is no more than a small part of a shorter text's
// tree.
constexpr std::size_t MAX_ITEMS_AT_FIRST = 64;
constexpr std::size_t BYTES_PER_ITEM = 16;

} // namespace

void JsonTreeBuilder::Reserve(std::size_t size)
{
    m_items.reserve(std::min(size / BYTES_PER_ITEM + 1, MAX_ITEMS_AT_FIRST));
}

void JsonTreeBuilder::Open(bool isMap)
{
    m_levels.push_back({m_items.size(), m_trees.size(), isMap});
    m_isInMap = isMap;
}

void JsonTreeBuilder::AddKey(std::string_view key, std::size_t offset)
{
    Level& level = m_levels.back();
    if (m_items.size() != level.firstItem && m_items.back().key >= key)
    {
        level.isSorted = false;
    }
    m_items.push_back({key, offset, {}});
}

bool JsonTreeBuilder::Close()
{
    const Level level = m_levels.back();
    PropertyTree& tree = m_trees.emplace_back(); // behind its children
    if (!level.isMap)
    {
        MakeList(tree);
    }
    else if (!MakeMap(tree))
    {
        return false;
    }
    if (&tree != &m_trees[level.firstTree])
    {
        m_trees[level.firstTree] = std::move(tree);
        m_trees.resize(level.firstTree + 1);
    }
    m_items.resize(level.firstItem);
    m_levels.pop_back();
    m_isInMap = !m_levels.empty() && m_levels.back().isMap;
    Add(TreeIndex{level.firstTree});
    return true;
}

PropertyTree JsonTreeBuilder::Result()
{
    PropertyTree tree;
    Pass(m_items.front().value, [&tree](auto value) { tree = std::move(value); });
    return tree;
}

void JsonTreeBuilder::MakeList(PropertyTree& tree)
{
    const std::size_t first = m_levels.back().firstItem;
    PropertyTree::List& list = tree.makeList(m_items.size() - first);
    for (std::size_t i = first; i != m_items.size(); ++i)
    {
        Pass(m_items[i].value,
             [&list]<class Content>(Content&& content) { list.emplace_back(std::forward<Content>(content)); });
    }
}

// False if a key occurs twice.
bool JsonTreeBuilder::MakeMap(PropertyTree& tree)
{
    const Level& level = m_levels.back();
    PropertyTree::Map& map = tree.makeMap(m_items.size() - level.firstItem);
    const auto add = [this, &map](const Item& item)
    {
        PropertyTree& child = map[item.key];
        Pass(item.value, [&child]<class Content>(Content&& content) { child = std::forward<Content>(content); });
    };
    if (level.isSorted)
    {
        for (std::size_t i = level.firstItem; i != m_items.size(); ++i)
        {
            add(m_items[i]);
        }
        return true;
    }
    const std::vector<const Item*> items = SortedItems(m_levels.size() - 1);
    if (std::ranges::adjacent_find(items, {}, &Item::key) != items.end())
    {
        return false;
    }
    for (const Item* item : items)
    {
        add(*item);
    }
    return true;
}

// Calls `take` with what makes the tree of `value`.
template <class Take> void JsonTreeBuilder::Pass(const Value& value, Take take)
{
    std::visit(
        [this, &take](auto content)
        {
            using Content = decltype(content);
            if constexpr (std::same_as<Content, TreeIndex>)
            {
                take(std::move(m_trees[content.value]));
            }
            else if constexpr (std::same_as<Content, std::string_view>)
            {
                take(std::string(content));
            }
            else if constexpr (std::same_as<Content, std::monostate>)
            {
                take(PropertyTree());
            }
            else
            {
                take(content);
            }
        },
        value);
}

// Behind the last of the level's own items.
std::size_t JsonTreeBuilder::EndOf(std::size_t level) const noexcept
{
    return level + 1 == m_levels.size() ? m_items.size() : m_levels[level + 1].firstItem;
}

// The items of a map in the order of their keys, and those of the same key in the order of the text.
std::vector<const JsonTreeBuilder::Item*> JsonTreeBuilder::SortedItems(std::size_t level) const
{
    const Item* const first = m_items.data() + m_levels[level].firstItem;
    std::vector<const Item*> items(EndOf(level) - m_levels[level].firstItem);
    std::ranges::generate(items, [next = first]() mutable { return next++; });
    std::ranges::sort(items,
                      [](const Item* a, const Item* b)
                      {
                          const int order = a->key.compare(b->key);
                          return order != 0 ? order < 0 : a->keyOffset < b->keyOffset;
                      });
    return items;
}

std::optional<JsonTreeBuilder::Duplicate> JsonTreeBuilder::FirstDuplicate() const
{
    const Item* found = nullptr;
    std::size_t foundLevel = 0;
    for (std::size_t level = 0; level != m_levels.size(); ++level)
    {
        if (!m_levels[level].isMap || m_levels[level].isSorted)
        {
            continue;
        }
        const std::vector<const Item*> items = SortedItems(level);
        for (std::size_t i = 1; i < items.size(); ++i)
        {
            if (items[i]->key == items[i - 1]->key && (!found || items[i]->keyOffset < found->keyOffset))
            {
                found = items[i];
                foundLevel = level;
            }
        }
    }
    if (!found)
    {
        return std::nullopt;
    }
    return Duplicate{found->key, found->keyOffset, PathOf(foundLevel + 1, false)};
}

// The path of the first `levels` levels, and to the next value in the last of them if `isAtValue`.
std::string JsonTreeBuilder::PathOf(std::size_t levels, bool isAtValue) const
{
    MessageText::Path path;
    for (std::size_t level = 0; level != levels && (isAtValue || level + 1 != levels); ++level)
    {
        const std::size_t end = EndOf(level);
        if (m_levels[level].isMap)
        {
            path.Add(m_items[end - 1].key);
        }
        else
        {
            path.Add(end - m_levels[level].firstItem);
        }
    }
    return path.Text();
}

} // namespace Ombrel
