#include "PropertyTree/PropertyTreeMap.h"

#include "PropertyTree/PropertyTree.h"
#include "PropertyTree/PropertyTreeMapFiller.h"
#include "PropertyTree/PropertyTreeMapIndex.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>

namespace Ombrel
{
namespace
{

constexpr std::size_t FIRST_CAPACITY = 4;    // of a map that has reserved nothing
constexpr std::size_t FAR_FROM_EITHER = 256; // end of a row of gaps

} // namespace

PropertyTreeMap::Internals::KeyPointer PropertyTreeMap::Internals::MakeKey(const PropertyTreeKeyView& view)
{
    const KnownTexts* texts = KnownTexts::Get();
    const PropertyTreeKey* known = texts ? texts->Find(view) : nullptr;
    return KeyPointer(known ? known : new PropertyTreeKey{std::string(view.text), view.head}, {KnownTexts::Range(texts)});
}

PropertyTreeMap::Root* PropertyTreeMap::Internals::MakeRoot(size_type capacity, const PropertyTreeMap* owner)
{
    constexpr size_type most = std::min<size_type>(std::numeric_limits<difference_type>::max() / sizeof(value_type) - 2,
                                                   std::numeric_limits<std::uint32_t>::max());
    if (capacity > most)
    {
        throw std::length_error("tree: a map of so many entries cannot be");
    }
    return ::new (::operator new(sizeof(Root) + capacity * sizeof(value_type)))
        Root{0, 0, static_cast<std::uint32_t>(capacity), nullptr, owner};
}

PropertyTreeMap::PropertyTreeMap(const PropertyTreeMap& other) : PropertyTreeMap()
{
    PropertyTreeMapFiller copy(*this, other.size()); // if it fails, the destructor runs, as the default constructor is done
    for (const value_type& entry : other)
    {
        PropertyTree child = entry.second;
        copy.AppendCopy(Internals::KeyOf(entry)) = std::move(child);
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
    if (count > m_root->capacity)
    {
        Index::Of(*m_root).Reserve(count);
    }
}

bool PropertyTreeMap::contains(std::string_view key) const noexcept
{
    return Internals::Search(*this, PropertyTreeKeyView(key)).isThere;
}

PropertyTree& PropertyTreeMap::at(std::string_view key)
{
    return const_cast<PropertyTree&>(std::as_const(*this).at(key));
}

const PropertyTree& PropertyTreeMap::at(std::string_view key) const
{
    const Where where = Internals::Search(*this, PropertyTreeKeyView(key));
    if (!where.isThere)
    {
        throw std::out_of_range("invalid map<K, T> key");
    }
    return where.slot->second;
}

PropertyTree& PropertyTreeMap::operator[](std::string_view key)
{
    return Internals::FindOrInsert(*this, PropertyTreeKeyView(key)).slot->second;
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::try_emplace(std::string_view key, PropertyTree&& value)
{
    const Where where = Internals::FindOrInsert(*this, PropertyTreeKeyView(key));
    if (!where.isThere)
    {
        where.slot->second = std::move(value);
    }
    return {iterator(Internals::At(*this, where)), !where.isThere};
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::try_emplace(std::string_view key, const PropertyTree& value)
{
    if (const Where where = Internals::Search(*this, PropertyTreeKeyView(key)); where.isThere)
    {
        return {iterator(Internals::At(*this, where)), false};
    }
    return try_emplace(key, PropertyTree(value));
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert_or_assign(std::string_view key, PropertyTree&& value)
{
    const Where where = Internals::FindOrInsert(*this, PropertyTreeKeyView(key));
    where.slot->second = std::move(value);
    return {iterator(Internals::At(*this, where)), !where.isThere};
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert_or_assign(std::string_view key, const PropertyTree& value)
{
    return insert_or_assign(key, PropertyTree(value));
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert(std::pair<const std::string, PropertyTree> entry)
{
    return try_emplace(entry.first, std::move(entry.second));
}

PropertyTreeMap::iterator PropertyTreeMap::erase(const_iterator position) noexcept
{
    const Position& where = position.m_position;
    const bool hasIndex = m_root->index != nullptr;
    return iterator(Internals::Erase(*this, {where.entry, hasIndex ? Internals::IndexOf(*m_root).Locate(where) : where.place}));
}

PropertyTreeMap::size_type PropertyTreeMap::erase(std::string_view key) noexcept
{
    const Where where = Internals::Search(*this, PropertyTreeKeyView(key));
    if (!where.isThere)
    {
        return 0;
    }
    Internals::Erase(*this, where);
    return 1;
}

bool operator==(const PropertyTreeMap& a, const PropertyTreeMap& b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](const auto& left, const auto& right) {
                                                  return KeyOf(left.first) == KeyOf(right.first) && left.second == right.second;
                                              });
}

PropertyTreeMap::Position PropertyTreeMap::Find(std::string_view key) const noexcept
{
    const Where where = Internals::Search(*this, PropertyTreeKeyView(key));
    if (!where.isThere)
    {
        return Position(this);
    }
    return m_root->index ? Position(where.place, m_root) : Position(where.slot, m_root);
}

PropertyTreeMap::Position PropertyTreeMap::Internals::At(const PropertyTreeMap& map, const Where& where) noexcept
{
    Root* const root = map.m_root;
    if (root->index)
    {
        return InIndex(*root, where.place);
    }
    value_type* slot = where.slot;
    while (slot != root->End<value_type>() && IsGap(*slot))
    {
        ++slot;
    }
    return slot == root->End<value_type>() ? Position(&map) : Position(slot, root);
}

PropertyTreeMap::Position PropertyTreeMap::Internals::InIndex(Root& root, Order::iterator place) noexcept
{
    return place == IndexOf(root).Entries().end() ? Position(root.owner) : Position(place, &root);
}

PropertyTreeMap::Index& PropertyTreeMap::Internals::IndexOf(const Root& root) noexcept
{
    return static_cast<Index&>(*root.index);
}

PropertyTreeMap::Where PropertyTreeMap::Internals::Search(const PropertyTreeMap& map, const PropertyTreeKeyView& key) noexcept
{
    Root* const root = map.m_root;
    if (!root)
    {
        return {};
    }
    if (root->index)
    {
        const Order& order = IndexOf(*root).Entries();
        const auto place = order.lower_bound(key);
        const bool isThere = place != order.end() && !ByKey()(key, *place);
        return {isThere ? place->entry : nullptr, place, isThere};
    }
    value_type* slot = root->Slots();
    for (size_type rest = root->used; rest != 0;)
    {
        const size_type half = (rest + 1) / 2;
        slot += KeyOf(slot[half - 1]).head < key.head ? half : 0; // without a branch, which would be mispredicted
        rest -= half;
    }
    value_type* const end = root->End<value_type>();
    if (slot != end && KeyOf(*slot).head == key.head && slot->first < key.text)
    {
        slot = std::partition_point(slot + 1, end, [&key](const value_type& entry) { return ViewOf(entry) < key; });
    }
    const bool isKey = slot != end && KeyOf(*slot).head == key.head && slot->first == key.text;
    const bool isGap = isKey && IsGap(*slot);
    return {slot, {}, isKey && !isGap, isGap};
}

inline bool PropertyTreeMap::Internals::CanAppend(const PropertyTreeMap& map, const PropertyTreeKeyView& key) noexcept
{
    Root* const root = map.m_root;
    return root && !root->index && root->used != root->capacity &&
           (root->used == 0 || ViewOf(root->End<value_type>()[-1]) < key);
}

PropertyTreeMap::Where PropertyTreeMap::Internals::FindOrInsert(PropertyTreeMap& map, const PropertyTreeKeyView& key)
{
    if (CanAppend(map, key))
    {
        return {&Append(*map.m_root, *MakeKey(key).release())};
    }
    Where where = Search(map, key);
    if (where.isThere || (where.isGap && TakeBack(*map.m_root, where.slot)))
    {
        return where;
    }
    KeyPointer made = MakeKey(key);
    if (!map.m_root)
    {
        map.m_root = MakeRoot(FIRST_CAPACITY, &map);
        return {&Append(*map.m_root, *made.release())};
    }
    Root& root = *map.m_root;
    const bool hasIndex = root.index != nullptr;
    Index& index = Index::Of(root);
    where.place = index.Insert(hasIndex ? where.place : index.Entries().lower_bound(key), *made);
    where.slot = where.place->entry;
    made.release();
    ++root.size;
    return where;
}

bool PropertyTreeMap::Internals::TakeBack(Root& root, value_type* gap) noexcept
{
    for (size_type distance = 0; distance != FAR_FROM_EITHER; ++distance)
    {
        value_type* first = gap - distance;
        value_type* last = gap + distance;
        if (first == root.Slots() || !IsGap(first[-1]))
        {
            last = first + GapLength(*first) - 1;
        }
        else if (!IsGap(last[1])) // the last slot in use is no gap
        {
            first = last - GapLength(*last) + 1;
        }
        else
        {
            continue;
        }
        if (first != gap)
        {
            SetGaps(first, gap - 1);
        }
        if (last != gap)
        {
            SetGaps(gap + 1, last);
        }
        std::construct_at(&gap->second);
        ++root.size;
        return true;
    }
    return false;
}

PropertyTreeMap::Position PropertyTreeMap::Internals::Erase(PropertyTreeMap& map, const Where& where) noexcept
{
    Root& root = *map.m_root;
    if (!root.index)
    {
        return EraseInOrder(map, where.slot);
    }
    --root.size;
    return InIndex(root, IndexOf(root).Erase(where.place));
}

PropertyTreeMap::Position PropertyTreeMap::Internals::EraseInOrder(PropertyTreeMap& map, value_type* slot) noexcept
{
    Root& root = *map.m_root;
    value_type* const end = root.End<value_type>();
    value_type* const first = slot != root.Slots() && IsGap(slot[-1]) ? slot - GapLength(slot[-1]) : slot;
    slot->second.Clear();
    --root.size;
    if (slot + 1 == end)
    {
        const KeyDropper drop;
        std::for_each(first, end, [&drop](const value_type& entry) { drop(&KeyOf(entry)); });
        root.used = static_cast<std::uint32_t>(first - root.Slots());
        return Position(&map);
    }
    value_type* const next = slot + 1 + (IsGap(slot[1]) ? GapLength(slot[1]) : 0);
    slot->second.m_gap.state = PropertyTree::STATE_GAP;
    SetGaps(first, next - 1);
    return Position(next, &root);
}

PropertyTree& PropertyTreeMapFiller::FindOrInsertMoving(PropertyTreeMap& map, std::string_view key)
{
    using Internals = PropertyTreeMap::Internals;
    using Entry = PropertyTreeMap::value_type;
    map.reserve(1);
    const PropertyTreeKeyView view(key);
    const PropertyTreeMap::Where where = Internals::Search(map, view);
    PropertyTreeMap::Root& root = *map.m_root;
    if (where.isThere || root.index || !root.IsPlain() || root.size == root.capacity)
    {
        return map[key];
    }
    const PropertyTreeKey& made = *Internals::MakeKey(view).release();
    for (Entry* last = root.End<Entry>(); last != where.slot; --last)
    {
        Internals::Construct(last, Internals::KeyOf(last[-1])).second = std::move(last[-1].second);
        std::destroy_at(last - 1);
    }
    ++root.used;
    ++root.size;
    return Internals::Construct(where.slot, made).second;
}

// Destroys the children here and not in their destructors, which would not know how deep they are nested.
void PropertyTreeMap::Release(int depth) noexcept
{
    const auto destroy = [depth, drop = Internals::KeyDropper()](value_type& entry)
    {
        drop(&Internals::KeyOf(entry));
        if (entry.second.HoldsMemory())
        {
            entry.second.Release(depth + 1);
        }
    };
    if (m_root->index)
    {
        const std::unique_ptr<const Index> index(&Internals::IndexOf(*m_root));
        std::ranges::for_each(index->Entries(), destroy, [](Ordered ordered) -> value_type& { return *ordered.entry; });
    }
    else
    {
        std::for_each(m_root->Slots(), m_root->End<value_type>(), destroy); // with the gaps
    }
    ::operator delete(std::exchange(m_root, nullptr));
}

} // namespace Ombrel
