#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_TREE_BUILDER_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_TREE_BUILDER_H

#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Ombrel
{

/// Makes a tree of the values of a text in their order. Values wait until the map or list around them ends: then their number
/// is known, and it gets exactly the room that it needs. Texts are referred to until then and must stay where they are.
class JsonTreeBuilder
{
public:
    /// Stands for a map or list that has ended.
    struct TreeIndex
    {
        std::size_t value; ///< in `m_trees`
    };

    /// `monostate` is null.
    using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string_view, TreeIndex>;

    /// A key that occurs twice in a map that has not ended.
    struct Duplicate
    {
        std::string_view key;
        std::size_t offset; ///< of the second one
        std::string path;   ///< of the map
    };

    /// Makes room for the values of a text of `size` bytes.
    void Reserve(std::size_t size);

    std::size_t Depth() const noexcept { return m_levels.size(); }
    bool IsInMap() const noexcept { return m_isInMap; }

    /// Begins a map or list as the next value.
    void Open(bool isMap);

    /// The key of the next value, which stands at `offset` of the text.
    void AddKey(std::string_view key, std::size_t offset);

    void Add(const Value& value)
    {
        if (m_isInMap)
        {
            m_items.back().value = value;
        }
        else
        {
            m_items.push_back({{}, 0, value});
        }
    }

    /// Ends the innermost map or list. False, and nothing has changed, if a key occurs twice in the map.
    bool Close();

    /// The tree of the only value outside any map and list.
    PropertyTree Result();

    /// The first key of the text that occurs twice in a map, among the maps that have not ended.
    std::optional<Duplicate> FirstDuplicate() const;

    /// The path to the value that is to be added next, or of the innermost map or list.
    std::string PathText(bool isAtValue) const { return PathOf(m_levels.size(), isAtValue); }

private:
    struct Item
    {
        std::string_view key; // in a map
        std::size_t keyOffset;
        Value value;
    };

    // A map or list that has not ended. Its items are the last ones, up to those of the next level. In a map the last of them
    // is the entry that the next level belongs to.
    struct Level
    {
        std::size_t firstItem;
        std::size_t firstTree;
        bool isMap;
        bool isSorted = true; // each key comes after the one before
    };

    std::size_t EndOf(std::size_t level) const noexcept;
    std::vector<const Item*> SortedItems(std::size_t level) const;
    std::string PathOf(std::size_t levels, bool isAtValue) const;
    void MakeList(PropertyTree& tree);
    bool MakeMap(PropertyTree& tree);
    template <class Take> void Pass(const Value& value, Take take);

    std::vector<Item> m_items;
    std::vector<PropertyTree> m_trees; // the maps and lists among the items
    std::vector<Level> m_levels;
    bool m_isInMap = false; // whether the innermost level is a map
};

} // namespace Ombrel

#endif
