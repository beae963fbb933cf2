#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INDEX_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INDEX_H

#include "PropertyTree/KeyHead.h"
#include "PropertyTree/PropertyTree.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

// How the entries are kept. The first block has slots for exactly as many entries as were asked for, and as long as the entries
// come in key order they fill these slots in that order: the slots themselves are walked. The heads of the keys, their first
// eight characters as a number, stand side by side: these are searched, and a key itself is looked at only where its head is
// the one that is wanted.
//
// An entry that is erased before the end leaves a gap in a small block: its child goes, its key stays, and a bit says so. That
// takes no memory, and the same key can come back. A large block has room for an index of pointers instead, made when the
// first entry goes, so that erasing never allocates. And the first entry that comes out of order or finds no slot makes such
// an index, in that room or in a second block; from then on the entries stand anywhere and only pointers move.
//
// The index is cut into leaves of a few hundred pointers, so that no shift is long; the heads stand beside the pointers. A leaf
// has a pointer for each of its slots, whether an entry is there or not: the first ones lead to the entries in key order and
// the others to the free slots. The leaves are arranged alike, first those in use and then the empty ones. So an insert takes
// the pointer behind the entries and rotates it into its place, an erase rotates one out, two leaves are split or joined by
// swapping pointers, and what is free needs no list of its own.

namespace Ombrel
{

/// Where an entry is or belongs: the place in a leaf or, as long as there is no index, the number of the slot.
struct PropertyTreeMap::Where
{
    size_type leaf = 0;
    size_type place = 0;
    bool isThere = false;
    bool isGap = false; // of this key
};

/// The head of every block but the first: that of a leaf's slots and places, or of a longer row of leaves.
struct PropertyTreeMap::Block
{
    static Block* Make(size_type bytes, Block*& blocks);

    Block* next;
};

class PropertyTreeMap::Index
{
public:
    // A leaf that is alone grows until it has LEAF_MIN places or more; beside others it has at most LEAF_MAX. So half of any
    // full leaf goes into any empty one, and leaves room there.
    static constexpr size_type LEAF_MIN = 256;
    static constexpr size_type LEAF_MAX = 2 * LEAF_MIN - 1;

    // A block of so many slots has a bit for each of them that may be a gap, and no room for an index.
    static constexpr size_type GAPS_MAX = 32;

    /// How many bytes the first block has behind its slots.
    static size_type RoomFor(size_type capacity) noexcept;

    /// Makes the index of the entries that stand in the slots of `root`, which does not get to know of it; the gaps are free
    /// slots then. Throws, with the entries as they were, if there is no memory for a second block.
    /// @param count with small blocks, so many entries will fit
    static Index* Make(Root& root, size_type count);

    /// The same for a block that has room for it.
    static Index* MakeInRoom(Root& root) noexcept;

    const Leaf* FirstLeaf() const noexcept { return m_leaves; }
    const Leaf* EndLeaf() const noexcept { return m_leaves + m_used; }
    const Leaf* LeafAt(const Where& where) const noexcept { return m_leaves + where.leaf; }

    /// @param place in the row of all entries
    Where Find(size_type place) const noexcept;
    Where Find(std::string_view key) const noexcept;

    /// Gives the leaf, if it is the only one, at least `capacity` slots, of which there may be LEAF_MAX, or throws and changes
    /// nothing.
    void Widen(size_type capacity, Block*& blocks);

    /// Sees to it that the leaf of `where` has a free slot, or throws and changes nothing.
    void MakeRoom(Where& where, Block*& blocks);

    /// Needs a free slot in the leaf.
    void Insert(const Where& where, std::string&& key) noexcept;

    /// Moves `where` on to the next entry.
    void Erase(Where& where) noexcept;

private:
    Index(Leaf* leaves, size_type total) noexcept : m_leaves(leaves), m_total(total), m_room(total) {}

    static size_type LeavesFor(size_type capacity) noexcept;
    static Index* MakeBeside(Root& root, size_type capacity);

    static Leaf MakeLeaf(size_type capacity, size_type slotCount, Block*& blocks);
    static void MoveEntries(Leaf& from, size_type first, Leaf& to) noexcept;

    void AddLeaf(Block*& blocks);
    void Split(Where& where) noexcept;
    bool CanJoin(size_type leaf) const noexcept;
    void Join(size_type leaf) noexcept;
    void Drop(size_type leaf) noexcept;

    Leaf* m_leaves;       // and behind them one without places
    size_type m_used = 0; // of them, those with entries; they come first
    size_type m_total;    // leaves
    size_type m_room;     // for so many leaves
};

/// The place among `count` entries, which `entryAt` finds, where `key` is or belongs, and whether it is there.
template <class EntryAt>
std::pair<std::size_t, bool> PlaceAmong(const std::uint64_t* heads, std::size_t count, std::string_view key,
                                        const EntryAt& entryAt) noexcept
{
    const std::uint64_t head = HeadOf(key);
    std::size_t first = 0;
    for (std::size_t rest = count; rest != 0;)
    {
        const std::size_t half = (rest + 1) / 2;
        first += heads[first + half - 1] < head ? half : 0; // no branch: it could not be foretold
        rest -= half;
    }
    if (first == count || heads[first] != head)
    {
        return {first, false};
    }
    std::size_t end = first + 1; // of those with the same head, mostly this one alone
    if (end != count && heads[end] == head)
    {
        end = static_cast<std::size_t>(std::upper_bound(heads + end, heads + count, head) - heads);
    }
    while (first != end)
    {
        const std::size_t middle = first + (end - first) / 2;
        const int order = key.compare(entryAt(middle)->first);
        if (order == 0)
        {
            return {middle, true};
        }
        first = order > 0 ? middle + 1 : first;
        end = order > 0 ? end : middle;
    }
    return {first, false};
}

/// What stands so many bytes behind `start`.
template <class T> T* Behind(void* start, std::size_t bytes) noexcept
{
    return reinterpret_cast<T*>(static_cast<std::byte*>(start) + bytes);
}

} // namespace Ombrel

#endif
