#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_H

#include "OmbrelExport.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Ombrel
{

class PropertyTree;

/// The children of a tree in the map state: `std::string` keys in byte order, the shorter first on a common prefix.
///
/// It has the manners of `std::map`, with a look-up by `std::string_view` that makes no string. An entry never moves: a
/// reference to a key or a child lives until that entry is erased, through every insert and every other erase, and goes along
/// when the map is moved or swapped. Iterators do not survive an insert or an erase; `erase` returns the next one. Inserting
/// and copying either succeed or leave the map as it was; moving, swapping, erasing and destroying never throw, and erasing
/// and destroying allocate nothing.
///
/// The entries stand side by side in one block as long as they come in key order and there is room for them, so that such a
/// map costs one allocation, beside one for each key of more characters than a `std::string` keeps in itself (15 on
/// libstdc++). An empty map costs none. The memory of erased entries, in a small map with their keys, is kept for further ones;
/// it is given back by `clear` and by destroying the map.
///
/// Of n entries, finding one costs O(log n); inserting behind the last and erasing it O(1); inserting and erasing elsewhere
/// O(log n) and the shift of a few hundred pointers, the first time O(n); copying, comparing and clearing O(n).
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
    struct Leaf;
    struct Root;

    // Steps along the slots of the entries as long as `m_leaf` is null, else along the pointers to them.
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
        noexcept : m_entry(other.m_entry), m_leaf(other.m_leaf), m_place(other.m_place), m_gaps(other.m_gaps) {}

        reference operator*() const noexcept { return *m_entry; }
        pointer operator->() const noexcept { return m_entry; }

        Iterator& operator++() noexcept
        {
            if (!m_leaf)
            {
                ++m_entry;
                if (m_gaps)
                {
                    m_entry = NotBefore(*m_gaps, m_entry);
                }
                return *this;
            }
            return *this = Iterator(m_leaf, m_place + 1);
        }

        Iterator operator++(int) noexcept
        {
            const Iterator before = *this;
            ++*this;
            return before;
        }

        Iterator& operator--() noexcept
        {
            if (!m_leaf)
            {
                --m_entry;
                if (m_gaps)
                {
                    m_entry = NotBehind(*m_gaps, m_entry);
                }
                return *this;
            }
            if (m_place == 0)
            {
                --m_leaf;
                m_place = m_leaf->count;
            }
            return *this = Iterator(m_leaf, m_place - 1);
        }

        Iterator operator--(int) noexcept
        {
            const Iterator before = *this;
            --*this;
            return before;
        }

        friend bool operator==(const Iterator& a, const Iterator& b) noexcept { return a.m_entry == b.m_entry; }

    private:
        friend PropertyTreeMap;
        template <bool> friend class Iterator;

        Iterator(Root* gaps, pointer entry) noexcept : m_entry(entry), m_gaps(gaps) {}

        // Behind a leaf's last entry comes the first of the next leaf, and behind the last leaf one that holds none.
        Iterator(const Leaf* leaf, size_type place) noexcept : m_leaf(leaf), m_place(place)
        {
            if (m_place != 0 && m_place == m_leaf->count)
            {
                ++m_leaf;
                m_place = 0;
            }
            m_entry = m_leaf->count == 0 ? nullptr : m_leaf->places[m_place];
        }

        pointer m_entry = nullptr;
        const Leaf* m_leaf = nullptr;
        size_type m_place = 0;
        Root* m_gaps = nullptr; // if some of the slots are gaps
    };

public:
    using iterator = Iterator<false>;
    using const_iterator = Iterator<true>;

    PropertyTreeMap() noexcept = default;
    PropertyTreeMap(const PropertyTreeMap& other);
    PropertyTreeMap(PropertyTreeMap&& other) noexcept : m_root(std::exchange(other.m_root, nullptr)) {}
    ~PropertyTreeMap() { clear(); }

    PropertyTreeMap& operator=(const PropertyTreeMap& other);
    PropertyTreeMap& operator=(PropertyTreeMap&& other) noexcept;

    void swap(PropertyTreeMap& other) noexcept { std::swap(m_root, other.m_root); }
    friend void swap(PropertyTreeMap& a, PropertyTreeMap& b) noexcept { a.swap(b); }

    bool empty() const noexcept { return size() == 0; }
    size_type size() const noexcept { return m_root ? m_root->size : 0; }

    iterator begin() noexcept { return First<iterator>(); }
    iterator end() noexcept { return End<iterator>(); }
    const_iterator begin() const noexcept { return First<const_iterator>(); }
    const_iterator end() const noexcept { return End<const_iterator>(); }
    const_iterator cbegin() const noexcept { return begin(); }
    const_iterator cend() const noexcept { return end(); }

    /// Makes room for `count` entries in one block, in an empty map for exactly so many: they will then cost no allocation
    /// beside their keys, if they come in key order. On a map that has entries it is a hint.
    /// @throws std::length_error for more than 2^32 - 1 in an empty map, or what no memory could hold
    void reserve(size_type count);

    /// The entry under `key`, or `end()`.
    iterator find(std::string_view key) noexcept;
    const_iterator find(std::string_view key) const noexcept;

    bool contains(std::string_view key) const noexcept;
    size_type count(std::string_view key) const noexcept { return contains(key) ? 1 : 0; }

    /// The child under `key`.
    /// @throws std::out_of_range "invalid map<K, T> key" if there is none
    PropertyTree& at(std::string_view key);
    const PropertyTree& at(std::string_view key) const;

    /// The child under `key`, inserted as a null tree if missing. A key that comes after all others is not searched for.
    PropertyTree& operator[](std::string_view key);

    /// Inserts `value` under `key` unless the key is there already: then the map and `value` stay as they are.
    std::pair<iterator, bool> try_emplace(std::string_view key, PropertyTree&& value);
    std::pair<iterator, bool> insert(value_type entry);

    iterator erase(const_iterator position) noexcept;
    size_type erase(std::string_view key) noexcept;

    /// Erases all entries and gives back all memory.
    void clear() noexcept { Clear(0); }

    /// Equal keys with equal children.
    friend OMBREL_API bool operator==(const PropertyTreeMap& a, const PropertyTreeMap& b);

private:
    friend PropertyTree;
    friend class PropertyTreeMapFiller;
    friend class PropertyTreeMapWalk;

    struct Block;
    class Index;
    struct Where;

    // Some of the entries in key order: the first `count` places point to them, the others to free slots.
    struct Leaf
    {
        value_type** places;
        std::uint64_t* heads; // of the entries' keys: their first characters
        size_type count;
        size_type capacity;
    };

    // The head of the first block. Behind it stand the heads of the keys, and behind these the slots.
    struct Root
    {
        static Root* Make(size_type capacity);

        std::uint64_t* Heads() noexcept { return reinterpret_cast<std::uint64_t*>(this + 1); }
        value_type* Slots() noexcept { return reinterpret_cast<value_type*>(Heads() + capacity); }
        bool IsGap(size_type slot) const noexcept { return gaps != 0 && (gaps >> slot & 1) != 0; }
        size_type SlotsInUse() const noexcept;
        template <class... KeyArguments> value_type& Append(std::uint64_t head, size_type slot, const KeyArguments&... key);
        void DropLast() noexcept;

        size_type size;         // entries
        std::uint32_t capacity; // slots in this block
        std::uint32_t gaps;     // a bit for each slot whose entry was erased but for its key
        value_type* end;        // of the slots in use, as long as there is no index
        Index* index;           // null as long as the entries stand in order in the first slots
        Block* blocks;          // what was allocated after this one
    };

    template <class It> It First() const noexcept
    {
        if (!m_root)
        {
            return It();
        }
        if (m_root->index)
        {
            return It(FirstLeaf(), 0);
        }
        value_type* first = m_root->Slots();
        return m_root->gaps == 0 ? It(nullptr, first) : It(m_root, NotBefore(*m_root, first));
    }

    template <class It> It End() const noexcept
    {
        if (!m_root)
        {
            return It();
        }
        return m_root->index ? It(EndLeaf(), 0) : It(m_root->gaps == 0 ? nullptr : m_root, m_root->end);
    }

    const Leaf* FirstLeaf() const noexcept;
    const Leaf* EndLeaf() const noexcept;

    // The nearest slot from this one on that is no gap.
    static value_type* NotBefore(Root& root, const value_type* slot) noexcept;
    static value_type* NotBehind(Root& root, const value_type* slot) noexcept;

    Where Search(std::string_view key) const noexcept;
    template <class It> It At(const Where& where) const noexcept;
    bool HasRoomAtEnd(std::string_view key, std::uint64_t head) const noexcept;
    Where Insert(std::string_view key);
    iterator EraseAt(Where where) noexcept;
    void Release(int depth) noexcept;

    // The map stands so many containers below the one that is given up as a whole.
    void Clear(int depth) noexcept
    {
        if (m_root)
        {
            Release(depth);
        }
    }

    Root* m_root = nullptr;
};

} // namespace Ombrel

#endif
