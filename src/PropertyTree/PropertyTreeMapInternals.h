#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INTERNALS_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INTERNALS_H

#include "PropertyTree/PropertyTree.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string_view>
#include <tuple>
#include <utility>

namespace Ombrel
{

/// Where an entry is or would be inserted: the place in a leaf or, as long as there is no index, the number of the slot.
struct OMBREL_LOCAL PropertyTreeMap::Where
{
    size_type leaf = 0;
    size_type place = 0;
    bool isThere = false;
    bool isGap = false; // of this key
};

/// The header of every block but the first. It holds a leaf's slots and places, or a longer row of leaves.
struct OMBREL_LOCAL PropertyTreeMap::Block
{
    static Block* Make(size_type bytes, Block*& blocks);

    Block* next;
};

/// What the members of a map have in common. Where nothing else is said, the map has a root.
struct OMBREL_LOCAL PropertyTreeMap::Internals
{
    /// The first block, with no entries.
    /// @throws std::bad_alloc, std::length_error as `reserve`
    static Root* MakeRoot(size_type capacity, const PropertyTreeMap* owner);

    static bool IsGap(const Root& root, size_type slot) noexcept { return root.gaps != 0 && (root.gaps >> slot & 1) != 0; }

    /// With the gaps. Only as long as there is no index.
    static size_type SlotsInUse(const Root& root) noexcept
    {
        return root.gaps == 0 ? root.size : root.size + static_cast<size_type>(std::popcount(root.gaps));
    }

    /// The nearest slot from this one on that is not a gap, in either direction.
    static value_type* NotBefore(Root& root, const value_type* slot) noexcept;
    static value_type* NotBehind(Root& root, const value_type* slot) noexcept;

    /// Whether an entry with this key can be added in the slot behind those in use. The map need not have a root.
    static bool CanAppend(const PropertyTreeMap& map, std::string_view key, std::uint64_t head) noexcept;

    /// Adds the entry there, with a null tree.
    /// @param slot the number of that slot
    /// @param key what the key is constructed from
    template <class... KeyArguments>
    static value_type& Append(Root& root, std::uint64_t head, size_type slot, const KeyArguments&... key)
    {
        auto* entry = ::new (static_cast<void*>(root.end))
            value_type(std::piecewise_construct, std::forward_as_tuple(key...), std::forward_as_tuple());
        root.Heads()[slot] = head;
        ++root.end;
        ++root.size;
        return *entry;
    }

    /// Destroys the entry in the last slot in use, and with it the gaps before it.
    static void DropLast(Root& root) noexcept;

    /// Where the key is or would be inserted. The map need not have a root.
    static Where Search(const PropertyTreeMap& map, std::string_view key) noexcept;

    /// Finds the entry, or makes it with a null tree. The map need not have a root.
    static Where FindOrInsert(PropertyTreeMap& map, std::string_view key);

    static value_type& EntryAt(const PropertyTreeMap& map, const Where& where) noexcept;

    /// The entry at this place or, if the place is behind the last entry of a leaf or is a gap, the next one.
    static Position At(const PropertyTreeMap& map, const Where& where) noexcept;

    /// Where the entry is now.
    static Where Locate(const PropertyTreeMap& map, const Position& position) noexcept;

    /// Erases the entry and finds the next.
    static Position EraseAt(PropertyTreeMap& map, Where where) noexcept;
};

} // namespace Ombrel

#endif
