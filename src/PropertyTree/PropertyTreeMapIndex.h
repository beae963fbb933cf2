#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INDEX_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_INDEX_H

#include "PropertyTree/PropertyTreeMapInternals.h"

#include <cstddef>

namespace Ombrel
{

/// The entries of a map in key order, wherever their slots are, and the slots beside those of the first block. The slot of an
/// erased entry is kept for later.
class OMBREL_LOCAL PropertyTreeMap::Index : public Block
{
public:
    /// Makes the index of the entries in the slots of `root`, if there is none. The gaps become free slots.
    /// @throws std::bad_alloc; the root is then unchanged
    static Index& Of(Root& root);

    Index(const Index&) = delete;
    Index& operator=(const Index&) = delete;
    ~Index();

    const Order& Entries() const noexcept { return m_order; }

    /// Where the entry is, which takes a search if the position is older than the index.
    Order::iterator Locate(const Position& position) const noexcept
    {
        return position.hasPlace ? position.place : m_order.find(Ordered{position.entry});
    }

    /// Makes sure that there are so many slots. If that throws, the entries stay as they were.
    void Reserve(size_type count);

    /// Adds an entry with a null tree, which takes over the key. If that throws, the entries stay as they were, and the key is
    /// the caller's.
    /// @param behind the first entry with a greater key
    Order::iterator Insert(Order::iterator behind, const PropertyTreeKey& key);

    /// Erases the entry, and gives the next.
    Order::iterator Erase(Order::iterator position) noexcept;

private:
    explicit Index(Root& root);

    void Free(value_type* slot) noexcept;

    static constexpr size_type SLOTS_MAX = 512; // of a further block

    Order m_order;
    size_type m_slotCount;
    value_type* m_free = nullptr; // the first free slot, which refers to the next
};

} // namespace Ombrel

#endif
