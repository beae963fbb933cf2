#include "PropertyTree/PropertyTreeMap.h"

#include "PropertyTree/PropertyTree.h"
#include "PropertyTree/PropertyTreeMapFiller.h"
#include "PropertyTree/PropertyTreeMapIndex.h"

#include <algorithm>
#include <bit>
#include <cstdint>
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

PropertyTreeMap::Root* PropertyTreeMap::Internals::MakeRoot(size_type capacity, const PropertyTreeMap* owner)
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

inline void PropertyTreeMap::Internals::DropLast(Root& root) noexcept
{
    value_type* last = root.end - 1;
    if (root.gaps != 0)
    {
        last = NotBehind(root, last - 1) + 1;
        root.gaps &= BitOf(static_cast<size_type>(last - root.Slots())) - 1;
    }
    std::destroy(last, root.end);
    root.end = last;
    --root.size;
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
            Root* root = Internals::MakeRoot(count, this);
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
    return Internals::Search(*this, key).isThere;
}

PropertyTree& PropertyTreeMap::at(std::string_view key)
{
    return const_cast<PropertyTree&>(std::as_const(*this).at(key));
}

const PropertyTree& PropertyTreeMap::at(std::string_view key) const
{
    const Where where = Internals::Search(*this, key);
    if (!where.isThere)
    {
        throw std::out_of_range("invalid map<K, T> key");
    }
    return Internals::EntryAt(*this, where).second;
}

PropertyTree& PropertyTreeMap::operator[](std::string_view key)
{
    if (const std::uint64_t head = HeadOf(key); Internals::CanAppend(*this, key, head))
    {
        return Internals::Append(*m_root, head, Internals::SlotsInUse(*m_root), key).second;
    }
    return Internals::EntryAt(*this, Internals::FindOrInsert(*this, key)).second;
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::try_emplace(std::string_view key, PropertyTree&& value)
{
    const Where where = Internals::FindOrInsert(*this, key);
    if (!where.isThere)
    {
        Internals::EntryAt(*this, where).second = std::move(value);
    }
    return {iterator(Internals::At(*this, where)), !where.isThere};
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::try_emplace(std::string_view key, const PropertyTree& value)
{
    if (const Where where = Internals::Search(*this, key); where.isThere)
    {
        return {iterator(Internals::At(*this, where)), false};
    }
    return try_emplace(key, PropertyTree(value));
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert_or_assign(std::string_view key, PropertyTree&& value)
{
    const Where where = Internals::FindOrInsert(*this, key);
    Internals::EntryAt(*this, where).second = std::move(value);
    return {iterator(Internals::At(*this, where)), !where.isThere};
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
    return iterator(Internals::EraseAt(*this, Internals::Locate(*this, position.m_position)));
}

PropertyTreeMap::size_type PropertyTreeMap::erase(std::string_view key) noexcept
{
    const Where where = Internals::Search(*this, key);
    if (!where.isThere)
    {
        return 0;
    }
    Internals::EraseAt(*this, where);
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
    const Where where = Internals::Search(*this, key);
    return where.isThere ? Internals::At(*this, where) : Position(this);
}

PropertyTreeMap::Position PropertyTreeMap::Internals::At(const PropertyTreeMap& map, const Where& where) noexcept
{
    Root* const root = map.m_root;
    const Index* index = root->index;
    if (!index)
    {
        value_type* slot = NotBefore(*root, root->Slots() + where.place);
        return slot == root->end ? Position(&map) : Position(slot, root);
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
        return Position(&map);
    }
    Position position(leaf->places[place], root);
    position.leaf = static_cast<std::uint32_t>(leaf - index->FirstLeaf());
    position.place = static_cast<std::uint32_t>(place);
    return position;
}

PropertyTreeMap::value_type& PropertyTreeMap::Internals::EntryAt(const PropertyTreeMap& map, const Where& where) noexcept
{
    Root& root = *map.m_root;
    return root.index ? *root.index->LeafAt(where.leaf).places[where.place] : root.Slots()[where.place];
}

PropertyTreeMap::value_type* PropertyTreeMap::Internals::NotBefore(Root& root, const value_type* slot) noexcept
{
    const auto place = static_cast<size_type>(slot - root.Slots());
    const bool hasBit = root.gaps != 0 && place != Index::GAPS_MAX;
    return root.Slots() + place + (hasBit ? std::countr_one(root.gaps >> place) : 0);
}

PropertyTreeMap::value_type* PropertyTreeMap::Internals::NotBehind(Root& root, const value_type* slot) noexcept
{
    const auto place = static_cast<size_type>(slot - root.Slots());
    return root.Slots() + place - (root.gaps != 0 ? std::countl_one(root.gaps << (Index::GAPS_MAX - 1 - place)) : 0);
}

PropertyTreeMap::Where PropertyTreeMap::Internals::Search(const PropertyTreeMap& map, std::string_view key) noexcept
{
    Root* const root = map.m_root;
    if (!root)
    {
        return {};
    }
    if (root->index)
    {
        return root->index->Find(key);
    }
    const value_type* slots = root->Slots();
    const auto [place, isThere] = PlaceAmong(root->Heads(), SlotsInUse(*root), key, [slots](size_type i) { return slots + i; });
    const bool isGap = isThere && IsGap(*root, place);
    return {0, place, isThere && !isGap, isGap};
}

inline bool PropertyTreeMap::Internals::CanAppend(const PropertyTreeMap& map, std::string_view key, std::uint64_t head) noexcept
{
    Root* const root = map.m_root;
    if (!root || root->index)
    {
        return false;
    }
    const size_type used = SlotsInUse(*root);
    if (used == root->capacity)
    {
        return false;
    }
    if (used == 0)
    {
        return true;
    }
    const std::uint64_t last = root->Heads()[used - 1];
    return last < head || (last == head && root->end[-1].first < key);
}

PropertyTreeMap::Where PropertyTreeMap::Internals::FindOrInsert(PropertyTreeMap& map, std::string_view key)
{
    const std::uint64_t head = HeadOf(key);
    Root* const root = map.m_root;
    if (!root)
    {
        PropertyTreeMap first;
        first.m_root = MakeRoot(FIRST_CAPACITY, &first);
        Append(*first.m_root, head, 0, key);
        map.swap(first);
        return {};
    }
    if (CanAppend(map, key, head))
    {
        const size_type slot = SlotsInUse(*root);
        Append(*root, head, slot, key);
        return {0, slot};
    }
    Where where = Search(map, key);
    if (where.isGap)
    {
        root->gaps &= ~BitOf(where.place);
        ++root->size;
    }
    else if (!where.isThere)
    {
        std::string text(key); // first, so that nothing can fail after room was made
        Index* index = root->index;
        if (!index)
        {
            index = Index::Make(*root, root->size + 1);
            where = index->Find(key);
        }
        index->MakeRoom(where, root->blocks);
        root->index = index;
        index->Insert(where, std::move(text));
        ++root->size;
    }
    return where;
}

PropertyTreeMap::Position PropertyTreeMap::Internals::EraseAt(PropertyTreeMap& map, Where where) noexcept
{
    Root& root = *map.m_root;
    if (!root.index)
    {
        if (where.place + 1 == SlotsInUse(root))
        {
            DropLast(root);
            return Position(&map);
        }
        if (root.capacity <= Index::GAPS_MAX)
        {
            value_type* slot = root.Slots() + where.place;
            slot->second = PropertyTree();
            root.gaps |= BitOf(where.place);
            --root.size;
            return Position(NotBefore(root, slot), &root);
        }
        root.index = Index::MakeInRoom(root);
        where = root.index->Find(where.place);
    }
    root.index->Erase(where);
    --root.size;
    return At(map, where);
}

PropertyTree& PropertyTreeMapFiller::FindOrInsertMoving(PropertyTreeMap& map, std::string_view key)
{
    using Entry = PropertyTreeMap::value_type;
    map.reserve(1);
    const PropertyTreeMap::Where where = PropertyTreeMap::Internals::Search(map, key);
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
