#include "PropertyTree/PropertyTree.h"
#include "PropertyTree/PropertyTreeMap.h"
#include "PropertyTree/PropertyTreeMapIndex.h"

// Positions in a map, and the steps from one to another.

namespace Ombrel
{

void PropertyTreeMap::Position::SearchNext() noexcept
{
    if (root->index)
    {
        *this = Internals::InIndex(*root, std::next(Internals::IndexOf(*root).Locate(*this)));
        return;
    }
    value_type* next = entry + 1;
    next += next != root->End<value_type>() && Internals::IsGap(*next) ? Internals::GapLength(*next) : 0;
    *this = next == root->End<value_type>() ? Position(root->owner) : Position(next, root);
}

void PropertyTreeMap::Position::SearchPrevious() noexcept
{
    Root& itsRoot = *(entry ? root->owner : map)->m_root;
    if (itsRoot.index)
    {
        const Index& index = Internals::IndexOf(itsRoot);
        *this = Position(std::prev(entry ? index.Locate(*this) : index.Entries().end()), &itsRoot);
        return;
    }
    value_type* previous = (entry ? entry : itsRoot.End<value_type>()) - 1;
    previous -= Internals::IsGap(*previous) ? Internals::GapLength(*previous) : 0;
    *this = Position(previous, &itsRoot);
}

PropertyTreeMap::Position PropertyTreeMap::SearchFirst() const noexcept
{
    if (!m_root)
    {
        return Position(this);
    }
    if (m_root->index)
    {
        return Internals::InIndex(*m_root, Internals::IndexOf(*m_root).Entries().begin());
    }
    const bool isGap = m_root->used != 0 && Internals::IsGap(*m_root->Slots());
    return Internals::At(*this, {m_root->Slots() + (isGap ? Internals::GapLength(*m_root->Slots()) : 0)});
}

PropertyTreeMap::Position PropertyTreeMap::LowerBound(std::string_view key) const noexcept
{
    return m_root ? Internals::At(*this, Internals::Search(*this, PropertyTreeKeyView(key))) : Position(this);
}

PropertyTreeMap::Position PropertyTreeMap::UpperBound(std::string_view key) const noexcept
{
    Position position = LowerBound(key);
    if (position.entry && position.entry->first == key)
    {
        position.Next<value_type>();
    }
    return position;
}

PropertyTreeMap::iterator PropertyTreeMap::erase(const_iterator first, const_iterator last) noexcept
{
    while (first != last)
    {
        first = erase(first);
    }
    return iterator(last.m_position);
}

} // namespace Ombrel
