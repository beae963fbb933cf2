#include "PropertyTree/PropertyTree.h"
#include "PropertyTree/PropertyTreeMap.h"
#include "PropertyTree/PropertyTreeMapIndex.h"

// Positions in a map, and the steps from one to another.

namespace Ombrel
{

void PropertyTreeMap::Position::SearchNext() noexcept
{
    if (root->index && root->index->StepInLeaf(*this))
    {
        return;
    }
    Where where = Internals::Locate(*root->owner, *this);
    ++where.place;
    *this = Internals::At(*root->owner, where);
}

void PropertyTreeMap::Position::SearchPrevious() noexcept
{
    const PropertyTreeMap& owner = entry ? *root->owner : *map;
    Root& itsRoot = *owner.m_root;
    const Index* index = itsRoot.index;
    if (!index)
    {
        *this = Position(Internals::NotBehind(itsRoot, (entry ? entry : itsRoot.end) - 1), &itsRoot);
        return;
    }
    Where where =
        entry ? Internals::Locate(owner, *this) : Where{static_cast<size_type>(index->EndLeaf() - index->FirstLeaf())};
    if (where.place == 0)
    {
        --where.leaf;
        where.place = index->LeafAt(where.leaf).count;
    }
    --where.place;
    *this = Internals::At(owner, where);
}

PropertyTreeMap::Position PropertyTreeMap::SearchFirst() const noexcept
{
    return m_root ? Internals::At(*this, {}) : Position(this);
}

PropertyTreeMap::Position PropertyTreeMap::LowerBound(std::string_view key) const noexcept
{
    return m_root ? Internals::At(*this, Internals::Search(*this, key)) : Position(this);
}

PropertyTreeMap::Position PropertyTreeMap::UpperBound(std::string_view key) const noexcept
{
    if (!m_root)
    {
        return Position(this);
    }
    Where where = Internals::Search(*this, key);
    where.place += where.isThere ? 1 : 0;
    return Internals::At(*this, where);
}

PropertyTreeMap::Where PropertyTreeMap::Internals::Locate(const PropertyTreeMap& map, const Position& position) noexcept
{
    Root& root = *map.m_root;
    return root.index ? root.index->Locate(position) : Where{0, static_cast<size_type>(position.entry - root.Slots())};
}

PropertyTreeMap::iterator PropertyTreeMap::erase(const_iterator first, const_iterator last) noexcept
{
    while (first != last)
    {
        first = erase(first);
    }
    return iterator(last.m_position);
}

PropertyTreeMap::reverse_iterator PropertyTreeMap::rbegin() noexcept
{
    return reverse_iterator(end());
}

PropertyTreeMap::reverse_iterator PropertyTreeMap::rend() noexcept
{
    return reverse_iterator(begin());
}

PropertyTreeMap::const_reverse_iterator PropertyTreeMap::rbegin() const noexcept
{
    return const_reverse_iterator(end());
}

PropertyTreeMap::const_reverse_iterator PropertyTreeMap::rend() const noexcept
{
    return const_reverse_iterator(begin());
}

PropertyTreeMap::const_reverse_iterator PropertyTreeMap::crbegin() const noexcept
{
    return rbegin();
}

PropertyTreeMap::const_reverse_iterator PropertyTreeMap::crend() const noexcept
{
    return rend();
}

std::pair<PropertyTreeMap::iterator, PropertyTreeMap::iterator> PropertyTreeMap::equal_range(std::string_view key) noexcept
{
    return {lower_bound(key), upper_bound(key)};
}

std::pair<PropertyTreeMap::const_iterator, PropertyTreeMap::const_iterator>
PropertyTreeMap::equal_range(std::string_view key) const noexcept
{
    return {lower_bound(key), upper_bound(key)};
}

} // namespace Ombrel
