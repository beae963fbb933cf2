#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INTERNALS_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INTERNALS_H

#include "PropertyTree/KnownTexts.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

// How the entries are stored. The first block has slots for exactly as many entries as were asked for. As long as the entries
// are added in key order, they fill these slots in that order, and iterating steps from slot to slot.
//
// An entry that is erased before the end leaves a gap: its child is destroyed and its key stays. So the keys of all slots are
// in order, and a search need not know of gaps. The first and the last gap of a row of gaps have the row's length, so a step
// passes over the row at once. This takes no memory, and the same key can come back.
//
// The first entry that is added out of order, or finds no slot, makes an index. From then on the entries are in any order in
// memory, and only the index is in order.

namespace Ombrel
{

/// The entry with a key or, if there is none, the first one behind it.
struct OMBREL_LOCAL PropertyTreeMap::Where
{
    value_type* slot = nullptr; // without an index, may be a gap or behind the last slot in use
    Order::iterator place{};    // in the index
    bool isThere = false;
    bool isGap = false; // of this key
};

/// What the members of a map have in common. Where nothing else is said, the map has a root.
struct OMBREL_LOCAL PropertyTreeMap::Internals
{
    /// Destroys the key unless it is a known text.
    struct KeyDropper
    {
        void operator()(const PropertyTreeKey* key) const noexcept
        {
            if (!known.Holds(key))
            {
                delete key;
            }
        }

        KnownTexts::Range known = KnownTexts::Range(KnownTexts::GetIfMade());
    };

    using KeyPointer = std::unique_ptr<const PropertyTreeKey, KeyDropper>;

    /// A key for an entry that does not exist yet.
    static KeyPointer MakeKey(const PropertyTreeKeyView& view);

    /// The first block, with no entries.
    /// @throws std::bad_alloc, std::length_error as `reserve`
    static Root* MakeRoot(size_type capacity, const PropertyTreeMap* owner);

    static const PropertyTreeKey& KeyOf(const value_type& entry) noexcept { return Ombrel::KeyOf(entry.first); }
    static PropertyTreeKeyView ViewOf(const value_type& entry) noexcept { return PropertyTreeKeyView(KeyOf(entry)); }

    static bool IsGap(const value_type& slot) noexcept { return slot.second.State() == PropertyTree::STATE_GAP; }
    static size_type GapLength(const value_type& slot) noexcept { return slot.second.m_gap.length; }

    /// Makes a row of gaps of these slots, whose children are null or gaps already.
    static void SetGaps(value_type* first, value_type* last) noexcept
    {
        for (value_type* slot : {first, last})
        {
            ::new (static_cast<void*>(&slot->second.m_gap))
                PropertyTree::Gap{PropertyTree::STATE_GAP, static_cast<size_type>(last - first) + 1};
        }
    }

    /// Whether an entry with this key can be added in the slot behind those in use. The map need not have a root.
    static bool CanAppend(const PropertyTreeMap& map, const PropertyTreeKeyView& key) noexcept;

    /// Constructs an entry with a null tree. The entry takes over the key.
    static value_type& Construct(void* slot, const PropertyTreeKey& key) noexcept
    {
        return *::new (slot) value_type(key.text, PropertyTree());
    }

    /// Adds an entry in the slot behind those in use.
    static value_type& Append(Root& root, const PropertyTreeKey& key) noexcept
    {
        ++root.size;
        return Construct(root.Slots() + root.used++, key);
    }

    /// Where the key is or would be inserted. The map need not have a root.
    static Where Search(const PropertyTreeMap& map, const PropertyTreeKeyView& key) noexcept;

    /// Finds the entry, or makes it with a null tree. The map need not have a root.
    static Where FindOrInsert(PropertyTreeMap& map, const PropertyTreeKeyView& key);

    /// Makes an entry with a null tree of the gap, if its row is found soon enough.
    static bool TakeBack(Root& root, value_type* gap) noexcept;

    /// The entry, or the next one where a gap is.
    static Position At(const PropertyTreeMap& map, const Where& where) noexcept;

    static Position InIndex(Root& root, Order::iterator place) noexcept;
    static Index& IndexOf(const Root& root) noexcept;

    /// Erases the entry and finds the next.
    static Position Erase(PropertyTreeMap& map, const Where& where) noexcept;

    /// The same as long as there is no index.
    static Position EraseInOrder(PropertyTreeMap& map, value_type* slot) noexcept;
};

} // namespace Ombrel

#endif
