#ifndef OMBREL_BENCHMARKS_TREE_FORMAT_H
#define OMBREL_BENCHMARKS_TREE_FORMAT_H

#include "Constant.h"
#include "FieldCursor.h"
#include "PropertyTree/PropertyTree.h"

#include <concepts>
#include <cstddef>
#include <string_view>

namespace Ombrel::Benchmarks
{

/// How the hand-written code writes and reads a tree. The other formats have the same members:
///
/// - `Map` and `List`, which are written: each is made with the number of its entries, and those of a map come in key order;
/// - `CursorOf` a map, `ElementsOf` and `SizeOf` a list, each of them an `Element`, `TextOf` and `Decode` a scalar, which are
/// read.
struct TreeFormat
{
    using Element = const PropertyTree&; // of a list that is read
    class List;

    class Map
    {
    public:
        explicit Map(PropertyTree::Map& map) : m_map(&map) {}

        template <class Value> void Put(std::string_view key, const Value& value) { (*m_map)[key] = Plain(value); }
        Map PutMap(std::string_view key, std::size_t count) { return Map((*m_map)[key].makeMap(count)); }
        List PutList(std::string_view key, std::size_t count) { return List((*m_map)[key].makeList(count)); }

    private:
        PropertyTree::Map* m_map;
    };

    class List
    {
    public:
        explicit List(PropertyTree::List& list) : m_list(&list) {}

        template <class Value> void Add(const Value& value) { m_list->emplace_back(Plain(value)); }
        Map AddMap(std::size_t count) { return Map(m_list->emplace_back().makeMap(count)); }

    private:
        PropertyTree::List* m_list;
    };

    static std::string_view KeyOf(const PropertyTree::Map::value_type& entry) { return entry.first; }
    static const PropertyTree& ValueOf(const PropertyTree::Map::value_type& entry) { return entry.second; }

    static auto CursorOf(const PropertyTree& value)
    {
        const PropertyTree::Map& map = value.getMap();
        return MakeCursor<TreeFormat>(map.begin(), map.end());
    }

    static const PropertyTree::List& ElementsOf(const PropertyTree& value) { return value.getList(); }
    static std::size_t SizeOf(const PropertyTree::List& list) { return list.size(); }
    static std::string_view TextOf(const PropertyTree& value) { return value.getScalar().toString(); }

    template <class Value> static Value Decode(const PropertyTree& value)
    {
        const PropertyTreeScalar& scalar = value.getScalar();
        if constexpr (std::same_as<Value, bool>)
        {
            bool result = false;
            scalar.convertTo(result);
            return result;
        }
        else if constexpr (std::integral<Value>)
        {
            return static_cast<Value>(scalar.toInt());
        }
        else
        {
            return scalar.toDouble();
        }
    }
};

} // namespace Ombrel::Benchmarks

#endif
