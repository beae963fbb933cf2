#include "PropertyTreeJson/JsonTreeBuilder.h"

#include "PropertyTreeJson/MessageText.h"

#include <algorithm>
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
    PropertyTree tree;
    if (!level.isMap)
    {
        MakeList(tree);
    }
    else if (!MakeMap(tree))
    {
        return false;
    }
    m_items.resize(level.firstItem);
    m_trees.resize(level.firstTree);
    m_trees.push_back(std::move(tree));
    m_levels.pop_back();
    m_isInMap = !m_levels.empty() && m_levels.back().isMap;
    Add(TreeIndex{level.firstTree});
    return true;
}

PropertyTree JsonTreeBuilder::Result()
{
    PropertyTree tree;
    Assign(tree, m_items.front().value);
    return tree;
}

void JsonTreeBuilder::MakeList(PropertyTree& tree)
{
    const std::size_t first = m_levels.back().firstItem;
    PropertyTree::List& list = tree.makeList(m_items.size() - first);
    for (std::size_t i = first; i != m_items.size(); ++i)
    {
        Assign(list.emplace_back(), m_items[i].value);
    }
}

// False if a key occurs twice.
bool JsonTreeBuilder::MakeMap(PropertyTree& tree)
{
    const Level& level = m_levels.back();
    PropertyTree::Map& map = tree.makeMap(m_items.size() - level.firstItem);
    if (level.isSorted)
    {
        for (std::size_t i = level.firstItem; i != m_items.size(); ++i)
        {
            Assign(map[m_items[i].key], m_items[i].value);
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
        Assign(map[item->key], item->value);
    }
    return true;
}

void JsonTreeBuilder::Assign(PropertyTree& tree, const Value& value)
{
    if (const auto* text = std::get_if<std::string_view>(&value))
    {
        tree = std::string(*text);
    }
    else if (const auto* number = std::get_if<double>(&value))
    {
        tree = *number;
    }
    else if (const auto* integer = std::get_if<std::int64_t>(&value))
    {
        tree = *integer;
    }
    else if (const auto* index = std::get_if<TreeIndex>(&value))
    {
        tree = std::move(m_trees[index->value]);
    }
    else if (const auto* isTrue = std::get_if<bool>(&value))
    {
        tree = *isTrue;
    }
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
