#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_FILLER_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_FILLER_H

#include "PropertyTree/PropertyTreeMapIndex.h"

#include <cstdint>
#include <new>
#include <string_view>
#include <tuple>
#include <utility>

namespace Ombrel
{

inline PropertyTree& PropertyTreeMap::Append(std::string_view key, std::uint64_t head)
{
    Root& root = *m_root;
    auto* entry = ::new (static_cast<void*>(root.end))
        value_type(std::piecewise_construct, std::forward_as_tuple(key), std::forward_as_tuple());
    root.heads[root.size] = head;
    ++root.end;
    ++root.size;
    return entry->second;
}

/// Fills an empty map in key order. Whoever copies a map or has sorted the keys knows what `operator[]` finds out anew for
/// each: that there is room, that the entries stand in order and that the key is the last.
class PropertyTreeMapFiller
{
public:
    /// @param map without entries and with room for all that will be appended, which nothing else changes meanwhile
    explicit PropertyTreeMapFiller(PropertyTreeMap& map) noexcept : m_map(map) {}

    /// Adds a null child.
    /// @param key comes after all that are there
    /// @throws std::bad_alloc, without the child, if the key is too long for a `std::string` to keep in itself
    PropertyTree& Append(std::string_view key) { return m_map.Append(key, HeadOf(key)); }

private:
    PropertyTreeMap& m_map;
};

} // namespace Ombrel

#endif
