#include "PropertyTree/PropertyTreeMapIndex.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <new>

namespace Ombrel
{
namespace
{

using Entry = PropertyTreeMap::value_type;

// What follows something else in a block needs no padding before it.
static_assert(alignof(Entry) == alignof(void*) && sizeof(Entry) % alignof(void*) == 0);

// Makes the places point to the slots in order.
void PointTo(Entry* slot, std::size_t count, Entry** places)
{
    std::generate_n(places, count, [slot]() mutable { return slot++; });
}

} // namespace

PropertyTreeMap::Block* PropertyTreeMap::Block::Make(size_type bytes, Block*& blocks)
{
    blocks = ::new (::operator new(sizeof(Block) + bytes)) Block{blocks};
    return blocks;
}

std::size_t PropertyTreeMap::Index::LeavesFor(size_type capacity) noexcept
{
    return std::max(capacity / LEAF_MIN, size_type{1});
}

std::size_t PropertyTreeMap::Index::RoomFor(size_type capacity) noexcept
{
    return capacity <= GAPS_MAX ? 0 : sizeof(Index) + (LeavesFor(capacity) + 1) * sizeof(Leaf) + capacity * sizeof(value_type*);
}

PropertyTreeMap::Index* PropertyTreeMap::Index::Make(Root& root, size_type count)
{
    if (root.capacity > GAPS_MAX)
    {
        return MakeInRoom(root);
    }
    return MakeBeside(root, count <= root.capacity ? root.capacity : std::max(count, size_type{2} * root.capacity));
}

PropertyTreeMap::Index* PropertyTreeMap::Index::MakeInRoom(Root& root) noexcept
{
    void* memory = root.Slots() + root.capacity;
    const size_type total = LeavesFor(root.capacity);
    Leaf* leaves = Behind<Leaf>(memory, sizeof(Index));
    value_type** places = Behind<value_type*>(leaves, (total + 1) * sizeof(Leaf));
    PointTo(root.Slots(), root.capacity, places);
    Index* index = ::new (memory) Index(leaves, total);
    for (size_type i = 0; i < total; ++i)
    {
        const size_type begin = i * root.capacity / total;
        const size_type end = (i + 1) * root.capacity / total;
        const size_type count = std::clamp(root.size, begin, end) - begin;
        leaves[i] = {places + begin, root.Heads() + begin, count, end - begin};
        index->inUse += count == 0 ? 0 : 1;
    }
    leaves[total] = {};
    return index;
}

// In a second block, which also has the slots that the first one lacks.
PropertyTreeMap::Index* PropertyTreeMap::Index::MakeBeside(Root& root, size_type capacity)
{
    const size_type indexBytes = sizeof(Index) + 2 * sizeof(Leaf);
    const size_type slotBytes = (capacity - root.capacity) * sizeof(value_type);
    const size_type headBytes = capacity * sizeof(std::uint64_t);
    Block* block = Block::Make(indexBytes + slotBytes + headBytes + capacity * sizeof(value_type*), root.blocks);
    Leaf* leaves = Behind<Leaf>(block, sizeof(Block) + sizeof(Index));
    value_type* slots = Behind<value_type>(leaves, 2 * sizeof(Leaf));
    std::uint64_t* heads = Behind<std::uint64_t>(slots, slotBytes);
    value_type** places = Behind<value_type*>(heads, headBytes);
    value_type** free = places + root.size;
    leaves[0] = {places, heads, root.size, capacity};
    leaves[1] = {};
    for (size_type i = 0; i < root.capacity; ++i)
    {
        value_type* slot = root.Slots() + i;
        if (slot < root.end && !Internals::IsGap(root, i))
        {
            *heads++ = root.Heads()[i];
            *places++ = slot;
            continue;
        }
        if (slot < root.end)
        {
            std::destroy_at(slot);
        }
        *free++ = slot;
    }
    PointTo(slots, capacity - root.capacity, free);
    root.gaps = 0;
    Index* index = ::new (static_cast<void*>(block + 1)) Index(leaves, 1);
    index->inUse = 1;
    return index;
}

PropertyTreeMap::Where PropertyTreeMap::Index::Find(size_type number) const noexcept
{
    size_type leaf = 0;
    while (leaf + 1 < inUse && number >= row[leaf].count)
    {
        number -= row[leaf].count;
        ++leaf;
    }
    return {leaf, number};
}

PropertyTreeMap::Where PropertyTreeMap::Index::Find(std::string_view key) const noexcept
{
    const auto comesAfter = [key, head = HeadOf(key)](const Leaf& leaf)
    { return head != leaf.heads[0] ? head < leaf.heads[0] : key < leaf.places[0]->first; };
    // The last leaf that begins with this key or one before it, else the first.
    const Leaf* next = std::partition_point(row, row + inUse, std::not_fn(comesAfter));
    const Leaf& leaf = next == row ? *next : next[-1];
    const auto [place, isThere] = PlaceAmong(leaf.heads, leaf.count, key, [&leaf](size_type i) { return leaf.places[i]; });
    return {static_cast<size_type>(&leaf - row), place, isThere};
}

// Whether the entry is still where it was when the position was made.
bool PropertyTreeMap::Index::IsAt(const Position& position) const noexcept
{
    return position.leaf < inUse && position.place < row[position.leaf].count &&
           row[position.leaf].places[position.place] == position.entry;
}

PropertyTreeMap::Where PropertyTreeMap::Index::Locate(const Position& position) const noexcept
{
    return IsAt(position) ? Where{position.leaf, position.place} : Find(position.entry->first);
}

bool PropertyTreeMap::Index::StepInLeaf(Position& position) const noexcept
{
    if (!IsAt(position) || position.place + 1 == row[position.leaf].count)
    {
        return false;
    }
    ++position.place;
    position.entry = row[position.leaf].places[position.place];
    return true;
}

void PropertyTreeMap::Index::MakeRoom(Where& where, Block*& blocks)
{
    const Leaf& leaf = row[where.leaf];
    if (inUse == 0)
    {
        inUse = 1;
    }
    else if (leaf.count == leaf.capacity)
    {
        if (m_total == 1 && leaf.capacity < LEAF_MIN)
        {
            Widen(2 * leaf.capacity, blocks);
            return;
        }
        AddLeaf(blocks);
        Split(where);
    }
}

void PropertyTreeMap::Index::Widen(size_type capacity, Block*& blocks)
{
    const Leaf narrow = row[0];
    if (m_total == 1 && narrow.capacity < capacity)
    {
        row[0] = MakeLeaf(capacity, capacity - narrow.capacity, blocks);
        row[0].count = narrow.count;
        std::copy_n(narrow.heads, narrow.count, row[0].heads);
        std::copy_n(narrow.places, narrow.capacity, row[0].places);
    }
}

// A leaf whose last places point to new slots.
PropertyTreeMap::Leaf PropertyTreeMap::Index::MakeLeaf(size_type capacity, size_type slotCount, Block*& blocks)
{
    const size_type bytes = slotCount * sizeof(value_type) + capacity * (sizeof(std::uint64_t) + sizeof(value_type*));
    value_type* slots = Behind<value_type>(Block::Make(bytes, blocks), sizeof(Block));
    std::uint64_t* heads = Behind<std::uint64_t>(slots, slotCount * sizeof(value_type));
    value_type** places = Behind<value_type*>(heads, capacity * sizeof(std::uint64_t));
    PointTo(slots, slotCount, places + (capacity - slotCount));
    return {places, heads, 0, capacity};
}

// Makes sure that there is an empty leaf.
void PropertyTreeMap::Index::AddLeaf(Block*& blocks)
{
    if (inUse < m_total)
    {
        return;
    }
    if (m_total == m_room)
    {
        Leaf* longer = Behind<Leaf>(Block::Make((2 * m_room + 1) * sizeof(Leaf), blocks), sizeof(Block));
        std::copy_n(row, m_total + 1, longer);
        row = longer;
        m_room *= 2;
    }
    row[m_total] = MakeLeaf(LEAF_MAX, LEAF_MAX, blocks);
    row[++m_total] = {};
}

// Puts an empty leaf next to the full one and moves half of the entries into it. Where keys are added in rising or falling
// order it moves none, so that the leaves stay full.
void PropertyTreeMap::Index::Split(Where& where) noexcept
{
    Leaf& full = row[where.leaf];
    Leaf& empty = row[inUse];
    const bool isFirst = where.leaf == 0 && where.place == 0;
    const bool isLast = where.leaf + 1 == inUse && where.place == full.count;
    if (!isFirst && !isLast)
    {
        MoveEntries(full, full.count - full.count / 2, empty);
    }
    const size_type kept = full.count;
    const size_type target = isFirst ? 0 : where.leaf + 1;
    std::rotate(row + target, row + inUse, row + inUse + 1);
    ++inUse;
    if (isLast || where.place > kept)
    {
        where = {target, where.place - kept};
    }
}

void PropertyTreeMap::Index::Insert(const Where& where, std::string&& key) noexcept
{
    Leaf& leaf = row[where.leaf];
    value_type** place = leaf.places + where.place;
    std::uint64_t* head = leaf.heads + where.place;
    std::rotate(place, leaf.places + leaf.count, leaf.places + leaf.count + 1);
    std::copy_backward(head, leaf.heads + leaf.count, leaf.heads + leaf.count + 1);
    ++leaf.count;
    *head = HeadOf(key);
    std::construct_at(*place, std::move(key), PropertyTree());
}

void PropertyTreeMap::Index::Erase(Where& where) noexcept
{
    Leaf& leaf = row[where.leaf];
    value_type** place = leaf.places + where.place;
    std::uint64_t* head = leaf.heads + where.place;
    std::destroy_at(*place);
    std::rotate(place, place + 1, leaf.places + leaf.count);
    std::copy(head + 1, leaf.heads + leaf.count, head);
    --leaf.count;
    if (leaf.count == 0)
    {
        Drop(where.leaf);
    }
    else if (CanJoin(where.leaf))
    {
        Join(where.leaf);
    }
    else if (where.leaf != 0 && CanJoin(where.leaf - 1))
    {
        where = {where.leaf - 1, where.place + row[where.leaf - 1].count};
        Join(where.leaf);
    }
}

// Moves the entries from `first` on behind those of `to`, and as many free slots in the other direction.
void PropertyTreeMap::Index::MoveEntries(Leaf& from, size_type first, Leaf& to) noexcept
{
    const size_type count = from.count - first;
    std::swap_ranges(from.places + first, from.places + from.count, to.places + to.count);
    std::copy_n(from.heads + first, count, to.heads + to.count);
    to.count += count;
    from.count = first;
}

// Whether the entries of the leaf and the next one fit into one leaf with much room left.
bool PropertyTreeMap::Index::CanJoin(size_type leaf) const noexcept
{
    return leaf + 1 < inUse && row[leaf].count + row[leaf + 1].count <= LEAF_MIN / 2;
}

void PropertyTreeMap::Index::Join(size_type leaf) noexcept
{
    MoveEntries(row[leaf + 1], 0, row[leaf]);
    Drop(leaf + 1);
}

// Puts a leaf that has become empty behind those in use.
void PropertyTreeMap::Index::Drop(size_type leaf) noexcept
{
    std::rotate(row + leaf, row + leaf + 1, row + inUse);
    --inUse;
}

} // namespace Ombrel
