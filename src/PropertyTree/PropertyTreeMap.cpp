#include "PropertyTree/PropertyTreeMap.h"

#include "PropertyTree/PropertyTree.h"
#include "PropertyTree/PropertyTreeMapFiller.h"
#include "PropertyTree/PropertyTreeMapIndex.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>

namespace Ombrel
{
namespace
{

constexpr std::size_t FIRST_CAPACITY = 4; // of a map that has reserved nothing

} // namespace

PropertyTreeMap::Root* PropertyTreeMap::Root::Make(size_type capacity)
{
    constexpr size_type headBytes = sizeof(std::uint64_t);
    constexpr size_type bytesPerEntry = sizeof(value_type) + headBytes + sizeof(value_type*) + sizeof(Leaf); // mostly less
    if (capacity > std::numeric_limits<difference_type>::max() / bytesPerEntry - bytesPerEntry)
    {
        throw std::length_error("tree: a map of so many entries cannot be");
    }
    void* memory = ::operator new(sizeof(Root) + capacity * (sizeof(value_type) + headBytes) + Index::BytesFor(capacity));
    value_type* slots = Behind<value_type>(memory, sizeof(Root));
    std::uint64_t* heads = Behind<std::uint64_t>(slots, capacity * sizeof(value_type));
    return ::new (memory) Root{0, capacity, slots, heads, slots, nullptr, nullptr};
}

PropertyTreeMap::PropertyTreeMap(const PropertyTreeMap& other) : PropertyTreeMap()
{
    reserve(other.size()); // the delegated-to constructor is done, so a failure in here runs the destructor
    for (const auto& [key, child] : other)
    {
        Append(key, HeadOf(key)) = child;
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
            Root* root = Root::Make(count);
            clear();
            m_root = root;
        }
        return;
    }
    if (count > m_root->capacity && count <= Index::LEAF_MAX)
    {
        Index* index = m_root->index ? m_root->index : Index::Make(*m_root);
        const size_type capacity = index->SingleCapacity();
        if (capacity != 0 && capacity < count)
        {
            index->Widen(count - capacity, m_root->blocks);
            m_root->index = index;
        }
    }
}

PropertyTreeMap::iterator PropertyTreeMap::find(std::string_view key) noexcept
{
    const Where where = Search(key);
    return where.isThere ? At<iterator>(where) : end();
}

PropertyTreeMap::const_iterator PropertyTreeMap::find(std::string_view key) const noexcept
{
    const Where where = Search(key);
    return where.isThere ? At<const_iterator>(where) : end();
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
    return At<const_iterator>(where)->second;
}

PropertyTree& PropertyTreeMap::operator[](std::string_view key)
{
    if (const std::uint64_t head = HeadOf(key); HasRoomAtEnd(key, head))
    {
        return Append(key, head);
    }
    return At<iterator>(Insert(key))->second;
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::try_emplace(std::string_view key, PropertyTree&& value)
{
    const Where where = Insert(key);
    const iterator position = At<iterator>(where);
    if (!where.isThere)
    {
        position->second = std::move(value);
    }
    return {position, !where.isThere};
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert(value_type entry)
{
    return try_emplace(entry.first, std::move(entry.second));
}

PropertyTreeMap::iterator PropertyTreeMap::erase(const_iterator position) noexcept
{
    if (m_root->index)
    {
        return EraseAt({static_cast<size_type>(position.m_leaf - FirstLeaf()), position.m_place});
    }
    return EraseAt({0, static_cast<size_type>(position.m_entry - m_root->slots)});
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

const PropertyTreeMap::Leaf* PropertyTreeMap::FirstLeaf() const noexcept
{
    return m_root->index->FirstLeaf();
}

const PropertyTreeMap::Leaf* PropertyTreeMap::EndLeaf() const noexcept
{
    return m_root->index->EndLeaf();
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
    const auto [place, isThere] =
        PlaceAmong(m_root->heads, m_root->size, key, [this](size_type i) { return m_root->slots + i; });
    return {0, place, isThere};
}

template <class It> It PropertyTreeMap::At(const Where& where) const noexcept
{
    return m_root->index ? It(m_root->index->LeafAt(where), where.place) : It(m_root->slots + where.place);
}

// Whether `Append` can take it.
inline bool PropertyTreeMap::HasRoomAtEnd(std::string_view key, std::uint64_t head) const noexcept
{
    if (!m_root || m_root->index || m_root->size == m_root->capacity)
    {
        return false;
    }
    if (m_root->size == 0)
    {
        return true;
    }
    const std::uint64_t last = m_root->heads[m_root->size - 1];
    return last < head || (last == head && m_root->end[-1].first < key);
}

// Finds the entry, or makes it with a null tree.
PropertyTreeMap::Where PropertyTreeMap::Insert(std::string_view key)
{
    if (!m_root)
    {
        PropertyTreeMap first;
        first.m_root = Root::Make(FIRST_CAPACITY);
        first.Append(key, HeadOf(key));
        swap(first);
        return {};
    }
    if (const std::uint64_t head = HeadOf(key); HasRoomAtEnd(key, head))
    {
        Append(key, head);
        return {0, m_root->size - 1};
    }
    Where where = Search(key);
    if (!where.isThere)
    {
        std::string text(key); // first, so that nothing is left to fail once there is room
        Index* index = m_root->index;
        if (!index)
        {
            index = Index::Make(*m_root);
            where = index->Find(where.place);
        }
        index->MakeRoom(where, m_root->blocks);
        m_root->index = index;
        index->Insert(where, std::move(text));
        ++m_root->size;
    }
    return where;
}

// Erases the entry and finds the next.
PropertyTreeMap::iterator PropertyTreeMap::EraseAt(Where where) noexcept
{
    if (!m_root->index)
    {
        if (where.place + 1 == m_root->size)
        {
            std::destroy_at(--m_root->end);
            --m_root->size;
            return end();
        }
        m_root->index = Index::Make(*m_root);
        where = m_root->index->Find(where.place);
    }
    m_root->index->Erase(where);
    --m_root->size;
    return At<iterator>(where);
}

// Destroys the children here and not by their destructors, which would not know how deep they stand.
void PropertyTreeMap::Release(int depth) noexcept
{
    for (value_type& entry : *this)
    {
        entry.second.Clear(depth + 1);
        std::destroy_at(&entry);
    }
    while (m_root->blocks)
    {
        ::operator delete(std::exchange(m_root->blocks, m_root->blocks->next));
    }
    ::operator delete(std::exchange(m_root, nullptr));
}

} // namespace Ombrel
