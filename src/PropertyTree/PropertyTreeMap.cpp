#include "PropertyTree/PropertyTreeMap.h"

#include "PropertyTree/PropertyTree.h"

#include <algorithm>
#include <stdexcept>

namespace Ombrel
{

PropertyTreeMap::PropertyTreeMap() noexcept = default;

PropertyTreeMap::PropertyTreeMap(const PropertyTreeMap& other)
{
    m_entries.reserve(other.m_entries.size());
    for (const Entry& entry : other.m_entries)
    {
        m_entries.push_back(std::make_unique<value_type>(*entry));
    }
}

PropertyTreeMap::PropertyTreeMap(PropertyTreeMap&& other) noexcept = default;

PropertyTreeMap::~PropertyTreeMap() = default;

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

void PropertyTreeMap::swap(PropertyTreeMap& other) noexcept
{
    m_entries.swap(other.m_entries);
}

PropertyTreeMap::iterator PropertyTreeMap::find(std::string_view key) noexcept
{
    const size_type index = LowerBound(key);
    return HoldsAt(index, key) ? iterator(m_entries.data() + index) : end();
}

PropertyTreeMap::const_iterator PropertyTreeMap::find(std::string_view key) const noexcept
{
    const size_type index = LowerBound(key);
    return HoldsAt(index, key) ? const_iterator(m_entries.data() + index) : end();
}

PropertyTree& PropertyTreeMap::at(std::string_view key)
{
    return const_cast<PropertyTree&>(std::as_const(*this).at(key));
}

const PropertyTree& PropertyTreeMap::at(std::string_view key) const
{
    const const_iterator found = find(key);
    if (found == end())
    {
        throw std::out_of_range("invalid map<K, T> key");
    }
    return found->second;
}

PropertyTree& PropertyTreeMap::operator[](std::string_view key)
{
    return try_emplace(key, PropertyTree()).first->second;
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::try_emplace(std::string_view key, PropertyTree&& value)
{
    const size_type index = LowerBound(key);
    if (HoldsAt(index, key))
    {
        return {iterator(m_entries.data() + index), false};
    }
    Entry entry = std::make_unique<value_type>(key, PropertyTree());
    PropertyTree& child = entry->second;
    const iterator inserted = InsertAt(index, std::move(entry));
    child = std::move(value); // only now can nothing fail any more
    return {inserted, true};
}

std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::insert(value_type entry)
{
    return try_emplace(entry.first, std::move(entry.second));
}

PropertyTreeMap::iterator PropertyTreeMap::erase(const_iterator position) noexcept
{
    const auto index = position.m_position - m_entries.data();
    m_entries.erase(m_entries.begin() + index);
    return iterator(m_entries.data() + index);
}

PropertyTreeMap::size_type PropertyTreeMap::erase(std::string_view key) noexcept
{
    const iterator found = find(key);
    if (found == end())
    {
        return 0;
    }
    erase(found);
    return 1;
}

void PropertyTreeMap::clear() noexcept
{
    m_entries.clear();
}

bool operator==(const PropertyTreeMap& a, const PropertyTreeMap& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const auto& left, const auto& right)
                      { return left.first == right.first && left.second == right.second; });
}

PropertyTreeMap::size_type PropertyTreeMap::LowerBound(std::string_view key) const noexcept
{
    // Trees are mostly written in key order: then the new key belongs at the end.
    if (m_entries.empty() || m_entries.back()->first < key)
    {
        return m_entries.size();
    }
    const auto found = std::lower_bound(m_entries.begin(), m_entries.end(), key,
                                        [](const Entry& entry, std::string_view wanted) { return entry->first < wanted; });
    return static_cast<size_type>(found - m_entries.begin());
}

bool PropertyTreeMap::HoldsAt(size_type index, std::string_view key) const noexcept
{
    return index < m_entries.size() && m_entries[index]->first == key;
}

PropertyTreeMap::iterator PropertyTreeMap::InsertAt(size_type index, Entry entry)
{
    const auto inserted = m_entries.insert(m_entries.begin() + static_cast<difference_type>(index), std::move(entry));
    return iterator(std::to_address(inserted));
}

} // namespace Ombrel
