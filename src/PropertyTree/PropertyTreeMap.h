#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_H

#include "Export.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Ombrel
{

class PropertyTree;

/// The children of a tree in the map state: `std::string` keys in byte order, the shorter first on a common prefix.
///
/// It has the manners of `std::map`, with a look-up by `std::string_view` that makes no string. An entry never moves: a
/// reference to a key or a child lives until that entry is erased. Iterators do not survive an insert or an erase; `erase`
/// returns the next one. Inserting and copying either succeed or leave the map as it was; moving, swapping, erasing and
/// destroying never throw, and erasing and destroying allocate nothing.
///
/// Threads: as a standard container, many readers or one writer.
class OMBREL_API PropertyTreeMap
{
public:
    using key_type = std::string;
    using mapped_type = PropertyTree;
    using value_type = std::pair<const std::string, PropertyTree>;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using reference = value_type&;
    using const_reference = const value_type&;

private:
    using Entry = std::unique_ptr<value_type>;

    template <bool IsConst> class Iterator
    {
    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = PropertyTreeMap::value_type;
        using difference_type = std::ptrdiff_t;
        using pointer = std::conditional_t<IsConst, const value_type*, value_type*>;
        using reference = std::conditional_t<IsConst, const value_type&, value_type&>;

        Iterator() noexcept = default;

        template <bool IsOtherConst>
        requires(IsConst && !IsOtherConst) Iterator(const Iterator<IsOtherConst>& other)
        noexcept : m_position(other.m_position) {}

        reference operator*() const noexcept { return *m_position->get(); }
        pointer operator->() const noexcept { return m_position->get(); }

        Iterator& operator++() noexcept
        {
            ++m_position;
            return *this;
        }

        Iterator operator++(int) noexcept
        {
            Iterator before = *this;
            ++m_position;
            return before;
        }

        Iterator& operator--() noexcept
        {
            --m_position;
            return *this;
        }

        Iterator operator--(int) noexcept
        {
            Iterator before = *this;
            --m_position;
            return before;
        }

        friend bool operator==(const Iterator&, const Iterator&) noexcept = default;

    private:
        friend PropertyTreeMap;
        template <bool> friend class Iterator;

        explicit Iterator(const Entry* position) noexcept : m_position(position) {}

        const Entry* m_position = nullptr;
    };

public:
    using iterator = Iterator<false>;
    using const_iterator = Iterator<true>;

    PropertyTreeMap() noexcept;
    PropertyTreeMap(const PropertyTreeMap& other);
    PropertyTreeMap(PropertyTreeMap&& other) noexcept;
    ~PropertyTreeMap();

    PropertyTreeMap& operator=(const PropertyTreeMap& other);
    PropertyTreeMap& operator=(PropertyTreeMap&& other) noexcept;

    void swap(PropertyTreeMap& other) noexcept;
    friend void swap(PropertyTreeMap& a, PropertyTreeMap& b) noexcept { a.swap(b); }

    bool empty() const noexcept { return size() == 0; }
    size_type size() const noexcept { return m_entries.size(); }

    iterator begin() noexcept { return iterator(m_entries.data()); }
    iterator end() noexcept { return iterator(m_entries.data() + m_entries.size()); }
    const_iterator begin() const noexcept { return const_iterator(m_entries.data()); }
    const_iterator end() const noexcept { return const_iterator(m_entries.data() + m_entries.size()); }
    const_iterator cbegin() const noexcept { return begin(); }
    const_iterator cend() const noexcept { return end(); }

    /// The entry under `key`, or `end()`. O(log n) comparisons.
    iterator find(std::string_view key) noexcept;
    const_iterator find(std::string_view key) const noexcept;

    bool contains(std::string_view key) const noexcept { return find(key) != end(); }
    size_type count(std::string_view key) const noexcept { return contains(key) ? 1 : 0; }

    /// The child under `key`.
    /// @throws std::out_of_range "invalid map<K, T> key" if there is none
    PropertyTree& at(std::string_view key);
    const PropertyTree& at(std::string_view key) const;

    /// The child under `key`, inserted as a null tree if missing.
    PropertyTree& operator[](std::string_view key);

    /// Inserts `value` under `key` unless the key is there already: then the map and `value` stay as they are.
    std::pair<iterator, bool> try_emplace(std::string_view key, PropertyTree&& value);
    std::pair<iterator, bool> insert(value_type entry);

    iterator erase(const_iterator position) noexcept;
    size_type erase(std::string_view key) noexcept;
    void clear() noexcept;

    /// Equal keys with equal children.
    friend OMBREL_API bool operator==(const PropertyTreeMap& a, const PropertyTreeMap& b);

private:
    size_type LowerBound(std::string_view key) const noexcept;
    bool HoldsAt(size_type index, std::string_view key) const noexcept;
    iterator InsertAt(size_type index, Entry entry);

    std::vector<Entry> m_entries; // sorted by key
};

} // namespace Ombrel

#endif
