#include "PropertyTree/PropertyTreeMapIndex.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace Ombrel
{

bool PropertyTreeMap::ByKey::operator()(Ordered a, Ordered b) const noexcept
{
    return Internals::ViewOf(*a.entry) < Internals::ViewOf(*b.entry);
}

bool PropertyTreeMap::ByKey::operator()(Ordered a, const PropertyTreeKeyView& b) const noexcept
{
    return Internals::ViewOf(*a.entry) < b;
}

bool PropertyTreeMap::ByKey::operator()(const PropertyTreeKeyView& a, Ordered b) const noexcept
{
    return a < Internals::ViewOf(*b.entry);
}

PropertyTreeMap::Index& PropertyTreeMap::Index::Of(Root& root)
{
    if (!root.index)
    {
        auto index = std::unique_ptr<Index>(new Index(root));
        const Internals::KeyDropper drop;
        for (value_type* slot = root.Slots() + root.capacity; slot-- != root.Slots();)
        {
            const bool isUsed = slot < root.End<value_type>();
            if (isUsed && !Internals::IsGap(*slot))
            {
                continue;
            }
            if (isUsed)
            {
                drop(&Internals::KeyOf(*slot));
            }
            index->Free(slot);
        }
        root.used = 0;
        root.index = index.release();
    }
    return Internals::IndexOf(root);
}

PropertyTreeMap::Index::Index(Root& root) : Block{nullptr, 0}, m_slotCount(root.capacity)
{
    for (value_type* slot = root.Slots(); slot != root.End<value_type>(); ++slot)
    {
        if (!Internals::IsGap(*slot))
        {
            m_order.insert(m_order.end(), {slot});
        }
    }
}

PropertyTreeMap::Index::~Index()
{
    while (next)
    {
        ::operator delete(std::exchange(next, next->next));
    }
}

// A free slot looks like a gap, so that whoever walks through the slots can tell.
void PropertyTreeMap::Index::Free(value_type* slot) noexcept
{
    std::construct_at(&slot->second);
    Internals::SetGaps(slot, slot);
    ::new (static_cast<void*>(slot)) value_type*(std::exchange(m_free, slot));
}

void PropertyTreeMap::Index::Reserve(size_type count)
{
    if (count > m_slotCount)
    {
        const size_type more = count - m_slotCount;
        next = ::new (::operator new(sizeof(Block) + more * sizeof(value_type))) Block{next, more};
        value_type* const slots = reinterpret_cast<value_type*>(next + 1);
        for (value_type* slot = slots + more; slot-- != slots;)
        {
            Free(slot);
        }
        m_slotCount = count;
    }
}

PropertyTreeMap::Order::iterator PropertyTreeMap::Index::Insert(Order::iterator behind, const PropertyTreeKey& key)
{
    if (!m_free)
    {
        Reserve(m_slotCount + std::min(m_slotCount, SLOTS_MAX));
    }
    value_type* const slot = m_free;
    m_free = *reinterpret_cast<value_type**>(slot);
    Internals::Construct(slot, key);
    try
    {
        return m_order.insert(behind, {slot});
    }
    catch (...)
    {
        Free(slot);
        throw;
    }
}

PropertyTreeMap::Order::iterator PropertyTreeMap::Index::Erase(Order::iterator position) noexcept
{
    value_type* const entry = position->entry;
    const auto behind = m_order.erase(position);
    entry->second = PropertyTree();
    Internals::KeyDropper()(&Internals::KeyOf(*entry));
    Free(entry);
    return behind;
}

} // namespace Ombrel
