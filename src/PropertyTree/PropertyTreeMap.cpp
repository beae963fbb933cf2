#include "PropertyTree/PropertyTreeMap.h"

#include "PropertyTree/PropertyTree.h"
#include "PropertyTree/PropertyTreeMapFiller.h"
#include "PropertyTree/PropertyTreeMapIndex.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>

namespace Ombrel
{
namespace
{

constexpr std::size_t FIRST_CAPACITY = 4; // of a map that has reserved nothing

constexpr std::uint32_t BitOf(std::size_t slot)
{
    return std::uint32_t{1} << slot;
}

} // namespace

PropertyTreeMap::Root* PropertyTreeMap::Root::Make(size_type capacity, const PropertyTreeMap* owner)
{
    constexpr size_type bytesPerEntry =
        sizeof(value_type) + sizeof(std::uint64_t) + sizeof(value_type*) + sizeof(Leaf); // or less
    constexpr size_type most = std::min<size_type>(std::numeric_limits<difference_type>::max() / bytesPerEntry - bytesPerEntry,
                                                   std::numeric_limits<std::uint32_t>::max());
    if (capacity > most)
    {
        throw std::length_error("tree: a map of so many entries cannot be");
    }
    const size_type bytes = sizeof(Root) + capacity * (sizeof(std::uint64_t) + sizeof(value_type)) + Index::RoomFor(capacity);
    Root* root =
        ::new (::operator new(bytes)) Root{0, static_cast<std::uint32_t>(capacity), 0, nullptr, nullptr, nullptr, owner};
    root->end = root->Slots();
    return root;
}

inline PropertyTreeMap::size_type PropertyTreeMap::Root::SlotsInUse() const noexcept
{
    return gaps == 0 ? size : size + static_cast<size_type>(std::popcount(gaps));
}

// Destroys the entry in the last slot in use, and with it the gaps before it.
inline void PropertyTreeMap::Root::DropLast() noexcept
{
    value_type* last = end - 1;
    if (gaps != 0)
    {
        last = NotBehind(*this, last - 1) + 1;
        gaps &= BitOf(static_cast<size_type>(last - Slots())) - 1;
    }
    std::destroy(last, end);
    end = last;
    --size;
}

PropertyTreeMap::PropertyTreeMap(const PropertyTreeMap& other) : PropertyTreeMap()
{
    PropertyTreeMapFiller copy(*this, other.size()); // if it fails, the destructor runs, as the default constructor is done
    for (const auto& [key, child] : other)
    {
        copy.Append(key, HeadOf(key)) = child;
    }
}

PropertyTreeMap& PropertyTreeMap::operator=(const PropertyTreeMap& other)
{
    PropertyTreeMap(other).swap(*this);
    return *this;
}

PropertyTreeMap& PropertyTreeMap::operator=(PropertyTreeMap&& other) noexcept
{
    PropertyTreeMap(std::move(other)).swap(*this);
    return *this;
}

void PropertyTreeMap::reserve(size_type count)
{
    if (empty())
    {
        if (count != 0 && (!m_root || m_root->index || m_root->capacity < count))
        {
            Root* root = Root::Make(count, this);
            clear();
            m_root = root;
        }
        return;
    }
    if (count > m_root->capacity && count <= Index::LEAF_MAX)
    {
        Index* index = m_root->index ? m_root->index : Index::Make(*m_root, count);
        index->Widen(count, m_root->blocks);
        m_root->index = index;
    }
}

bool PropertyTreeMap::contains(std::string_view key) const noexcept
{
    return Search(key).isThere;
}

PropertyTree& PropertyTreeMap::at(std::string_view key)
{
    return const_cast<PropertyTree&>(std::as_const(*this).at(key));
}

const PropertyTree& PropertyTreeMap::at(std::string_view key) const
{
    const Where where = Search(key);
    if (!where.isThere)
    {
        throw std::out_of_range("invalid map<K, T> key");
    }
    return EntryAt(where).second;
}

PropertyTree& PropertyTreeMap::operator[](std::string_view key)
{
    if (const std::uint64_t head = HeadOf(key); HasRoomAtEnd(key, head))
    {
        return m_root->Append(head, m_root->SlotsInUse(), key).second;
    }
    return EntryAt(Insert(key)).second;
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::try_emplace(std::string_view key, PropertyTree&& value)
{
    const Where where = Insert(key);
    if (!where.isThere)
    {
        EntryAt(where).second = std::move(value);
    }
    return {iterator(At(where)), !where.isThere};
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::try_emplace(std::string_view key, const PropertyTree& value)
{
    if (const Where where = Search(key); where.isThere)
    {
        return {iterator(At(where)), false};
    }
    return try_emplace(key, PropertyTree(value));
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert_or_assign(std::string_view key, PropertyTree&& value)
{
    const Where where = Insert(key);
    EntryAt(where).second = std::move(value);
    return {iterator(At(where)), !where.isThere};
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert_or_assign(std::string_view key, const PropertyTree& value)
{
    return insert_or_assign(key, PropertyTree(value));
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert(value_type entry)
{
    return try_emplace(entry.first, std::move(entry.second));
}

PropertyTreeMap::iterator PropertyTreeMap::erase(const_iterator position) noexcept
{
    return iterator(EraseAt(Locate(position.m_position)));
}

PropertyTreeMap::size_type PropertyTreeMap::erase(std::string_view key) noexcept
{
    const Where where = Search(key);
    if (!where.isThere)
    {
        return 0;
    }
    EraseAt(where);
    return 1;
}

bool operator==(const PropertyTreeMap& a, const PropertyTreeMap& b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](const auto& left, const auto& right)
                                              { return left.first == right.first && left.second == right.second; });
}

PropertyTreeMap::Position PropertyTreeMap::Find(std::string_view key) const noexcept
{
    const Where where = Search(key);
    return where.isThere ? At(where) : Position(this);
}

// The entry at this place or, if the place is behind the last entry of a leaf or is a gap, the next one.
PropertyTreeMap::Position PropertyTreeMap::At(const Where& where) const noexcept
{
    const Index* index = m_root->index;
    if (!index)
    {
        value_type* slot = NotBefore(*m_root, m_root->Slots() + where.place);
        return slot == m_root->end ? Position(this) : Position(slot, m_root);
    }
    const Leaf* leaf = &index->LeafAt(where.leaf);
    size_type place = where.place;
    if (place != 0 && place == leaf->count)
    {
        ++leaf;
        place = 0;
    }
    if (leaf->count == 0) // behind the last leaf that is in use
    {
        return Position(this);
    }
    Position position(leaf->places[place], m_root);
    position.leaf = static_cast<std::uint32_t>(leaf - index->FirstLeaf());
    position.place = static_cast<std::uint32_t>(place);
    return position;
}

PropertyTreeMap::value_type& PropertyTreeMap::EntryAt(const Where& where) const noexcept
{
    return m_root->index ? *m_root->index->LeafAt(where.leaf).places[where.place] : m_root->Slots()[where.place];
}

PropertyTreeMap::value_type* PropertyTreeMap::NotBefore(Root& root, const value_type* slot) noexcept
{
    const auto place = static_cast<size_type>(slot - root.Slots());
    const bool hasBit = root.gaps != 0 && place != Index::GAPS_MAX;
    return root.Slots() + place + (hasBit ? std::countr_one(root.gaps >> place) : 0);
}

PropertyTreeMap::value_type* PropertyTreeMap::NotBehind(Root& root, const value_type* slot) noexcept
{
    const auto place = static_cast<size_type>(slot - root.Slots());
    return root.Slots() + place - (root.gaps != 0 ? std::countl_one(root.gaps << (Index::GAPS_MAX - 1 - place)) : 0);
}

PropertyTreeMap::Where PropertyTreeMap::Search(std::string_view key) const noexcept
{
    if (!m_root)
    {
        return {};
    }
    if (m_root->index)
    {
        return m_root->index->Find(key);
    }
    const value_type* slots = m_root->Slots();
    const auto [place, isThere] =
        PlaceAmong(m_root->Heads(), m_root->SlotsInUse(), key, [slots](size_type i) { return slots + i; });
    const bool isGap = isThere && m_root->IsGap(place);
    return {0, place, isThere && !isGap, isGap};
}

// Whether an entry with this key can be added in the slot behind those in use.
inline bool PropertyTreeMap::HasRoomAtEnd(std::string_view key, std::uint64_t head) const noexcept
{
    if (!m_root || m_root->index)
    {
        return false;
    }
    const size_type used = m_root->SlotsInUse();
    if (used == m_root->capacity)
    {
        return false;
    }
    if (used == 0)
    {
        return true;
    }
    const std::uint64_t last = m_root->Heads()[used - 1];
    return last < head || (last == head && m_root->end[-1].first < key);
}

// Finds the entry, or makes it with a null tree.
PropertyTreeMap::Where PropertyTreeMap::Insert(std::string_view key)
{
    const std::uint64_t head = HeadOf(key);
    if (!m_root)
    {
        PropertyTreeMap first;
        first.m_root = Root::Make(FIRST_CAPACITY, &first);
        first.m_root->Append(head, 0, key);
        swap(first);
        return {};
    }
    if (HasRoomAtEnd(key, head))
    {
        const size_type slot = m_root->SlotsInUse();
        m_root->Append(head, slot, key);
        return {0, slot};
    }
    Where where = Search(key);
    if (where.isGap)
    {
        m_root->gaps &= ~BitOf(where.place);
        ++m_root->size;
    }
    else if (!where.isThere)
    {
        std::string text(key); // first, so that nothing can fail after room was made
        Index* index = m_root->index;
        if (!index)
        {
            index = Index::Make(*m_root, m_root->size + 1);
            where = index->Find(key);
        }
        index->MakeRoom(where, m_root->blocks);
        m_root->index = index;
        index->Insert(where, std::move(text));
        ++m_root->size;
    }
    return where;
}

// Erases the entry and finds the next.
PropertyTreeMap::Position PropertyTreeMap::EraseAt(Where where) noexcept
{
    if (!m_root->index)
    {
        if (where.place + 1 == m_root->SlotsInUse())
        {
            m_root->DropLast();
            return Position(this);
        }
        if (m_root->capacity <= Index::GAPS_MAX)
        {
            value_type* slot = m_root->Slots() + where.place;
            slot->second = PropertyTree();
            m_root->gaps |= BitOf(where.place);
            --m_root->size;
            return Position(NotBefore(*m_root, slot), m_root);
        }
        m_root->index = Index::MakeInRoom(*m_root);
        where = m_root->index->Find(where.place);
    }
    m_root->index->Erase(where);
    --m_root->size;
    return At(where);
}

PropertyTree& PropertyTreeMapFiller::Insert(PropertyTreeMap& map, std::string_view key)
{
    using Entry = PropertyTreeMap::value_type;
    map.reserve(1);
    const PropertyTreeMap::Where where = map.Search(key);
    PropertyTreeMap::Root& root = *map.m_root;
    if (where.isThere || root.index || root.gaps != 0 || root.size == root.capacity)
    {
        return map[key];
    }
    std::string text(key);
    Entry* const slot = root.Slots() + where.place;
    for (Entry* last = root.end; last != slot; --last)
    {
        // The key is const only for callers who hold a reference to the entry, and there are none.
        std::construct_at(last, std::move(const_cast<std::string&>(last[-1].first)), std::move(last[-1].second));
        std::destroy_at(last - 1);
    }
    std::uint64_t* const head = root.Heads() + where.place;
    std::copy_backward(head, root.Heads() + root.size, root.Heads() + root.size + 1);
    *head = HeadOf(key);
    ++root.end;
    ++root.size;
    return std::construct_at(slot, std::move(text), PropertyTree())->second;
}

// Destroys the children here and not in their destructors, which would not know how deep they are nested.
void PropertyTreeMap::Release(int depth) noexcept
{
    const auto destroy = [depth](value_type& entry)
    {
        entry.second.Clear(depth + 1);
        std::destroy_at(&entry);
    };
    if (const Index* index = m_root->index)
    {
        std::for_each(
            index->FirstLeaf(), index->EndLeaf(),
            [&destroy](const Leaf& leaf)
            { std::for_each(leaf.places, leaf.places + leaf.count, [&destroy](value_type* entry) { destroy(*entry); }); });
    }
    else
    {
        std::for_each(m_root->Slots(), m_root->end, destroy); // with the gaps
    }
    while (m_root->blocks)
    {
        ::operator delete(std::exchange(m_root->blocks, m_root->blocks->next));
    }
    ::operator delete(std::exchange(m_root, nullptr));
}

} // namespace Ombrel
