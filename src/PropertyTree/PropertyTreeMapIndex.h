#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INDEX_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INDEX_H

#include "PropertyTree/KeyHead.h"
#include "PropertyTree/PropertyTreeMapInternals.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

// How the entries are stored. The first block has slots for exactly as many entries as were asked for. As long as the entries
// are added in key order, they fill these slots in that order, and iterating steps from slot to slot. The heads of the keys,
// their first eight characters as a number, form an array of their own: a search compares the heads, and looks at a key itself
// only where its head equals the wanted one.
//
// An entry that is erased before the end leaves a gap in a small block: its child is destroyed, its key stays, and a bit marks
// the slot. This takes no memory, and the same key can come back. A large block reserves room for an index of pointers instead.
// The index is made when the first entry before the end is erased, so erasing never allocates. The first entry that is added
// out of order, or finds no slot, also makes an index, in that room or in a second block. From then on the entries are in any
// order in memory and only pointers move.
//
// The index is divided into leaves of a few hundred pointers, so that no shift is long; the heads are stored beside the
// pointers. A leaf has one pointer for each of its slots, used or not: the first ones point to the entries in key order and the
// others to the free slots. The leaves are arranged in the same way, those in use first and the empty ones after them. So an
// insert takes the pointer behind the entries and rotates it into its place, an erase rotates one out, leaves are split and
// joined by swapping pointers, and the free slots need no list of their own.

namespace Ombrel
{

class OMBREL_LOCAL PropertyTreeMap::Index : private LeafRow
{
public:
    // A leaf that is alone grows until it has LEAF_MIN places or more; beside others it has at most LEAF_MAX. So half of any
    // full leaf fits into any empty one, and leaves room there.
    static constexpr size_type LEAF_MIN = 256;
    static constexpr size_type LEAF_MAX = 2 * LEAF_MIN - 1;

    // A block of at most so many slots has a bit for each slot that may be a gap, and no room for an index.
    static constexpr size_type GAPS_MAX = 32;

    /// How many bytes the first block has behind its slots.
    static size_type RoomFor(size_type capacity) noexcept;

    /// Makes the index of the entries in the slots of `root`; the gaps become free slots. The caller stores it in `root`. If
    /// there is no memory for a second block, it throws and leaves the entries as they were.
    /// @param count how many entries it has room for beside a small first block
    static Index* Make(Root& root, size_type count);

    /// The same for a block that has room for it.
    static Index* MakeInRoom(Root& root) noexcept;

    const Leaf* FirstLeaf() const noexcept { return row; }
    const Leaf* EndLeaf() const noexcept { return row + inUse; }
    const Leaf& LeafAt(size_type leaf) const noexcept { return row[leaf]; }

    /// @param number of the entry among all entries
    Where Find(size_type number) const noexcept;
    Where Find(std::string_view key) const noexcept;

    /// Where the entry is now. This takes no search if no entry has moved in the index since the position was made.
    Where Locate(const Position& position) const noexcept;

    /// Steps to the next entry, if that takes no search and it is in the same leaf.
    bool StepInLeaf(Position& position) const noexcept;

    /// Gives the leaf, if it is the only one, at least `capacity` slots, of which there may be LEAF_MAX. If that throws,
    /// nothing has changed.
    void Widen(size_type capacity, Block*& blocks);

    /// Makes sure that the leaf of `where` has a free slot. If that throws, nothing has changed.
    void MakeRoom(Where& where, Block*& blocks);

    /// Needs a free slot in the leaf.
    void Insert(const Where& where, std::string&& key) noexcept;

    /// Moves `where` on to the next entry.
    void Erase(Where& where) noexcept;

private:
    bool IsAt(const Position& position) const noexcept;

    Index(Leaf* leaves, size_type total) noexcept : LeafRow{leaves, 0}, m_total(total), m_room(total) {}

    static size_type LeavesFor(size_type capacity) noexcept;
    static Index* MakeBeside(Root& root, size_type capacity);

    static Leaf MakeLeaf(size_type capacity, size_type slotCount, Block*& blocks);
    static void MoveEntries(Leaf& from, size_type first, Leaf& to) noexcept;

    void AddLeaf(Block*& blocks);
    void Split(Where& where) noexcept;
    bool CanJoin(size_type leaf) const noexcept;
    void Join(size_type leaf) noexcept;
    void Drop(size_type leaf) noexcept;

    size_type m_total; // leaves, with and without entries
    size_type m_room;  // leaves for which the row has room
};

/// The place among `count` entries where `key` is or would be inserted, and whether it is there. `entryAt` gives the entry at a
/// place.
template <class EntryAt>
std::pair<std::size_t, bool> PlaceAmong(const std::uint64_t* heads, std::size_t count, std::string_view key,
                                        const EntryAt& entryAt) noexcept
{
    const std::uint64_t head = HeadOf(key);
    std::size_t first = 0;
    for (std::size_t rest = count; rest != 0;)
    {
        const std::size_t half = (rest + 1) / 2;
        first += heads[first + half - 1] < head ? half : 0; // without a branch, which would be mispredicted
        rest -= half;
    }
    if (first == count || heads[first] != head)
    {
        return {first, false};
    }
    std::size_t end = first + 1; // of the entries with this head, which mostly is only one
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

/// The object that is `bytes` behind `start`.
template <class T> T* Behind(void* start, std::size_t bytes) noexcept
{
    return reinterpret_cast<T*>(static_cast<std::byte*>(start) + bytes);
}

} // namespace Ombrel

#endif
