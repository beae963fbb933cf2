#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_H

#include "OmbrelExport.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Ombrel
{

class PropertyTree;
struct PropertyTreeKeyView;

/// What would become a text by way of a null pointer: `nullptr` and the literal 0. The other integers are no keys either.
template <class T>
concept PropertyTreeNoKey = std::integral<T> || std::same_as<T, std::nullptr_t>;

/// The children of a tree in the map state, with `std::string` keys in byte order, where a key comes before every longer key
/// that begins with it.
///
/// The map behaves like `std::map`, and a look-up takes a `std::string_view` without making a string. An entry never moves in
/// memory. References and iterators to an entry stay valid until that entry is erased: inserting, erasing other entries and
/// `reserve` do not affect them, nor does `end()` change. When the map is moved or swapped, they go with the entries, and
/// `end()` stays with the map. `clear` and assigning to the map invalidate all of them.
///
/// Inserting and copying either succeed or leave the map as it was. Moving, swapping, erasing and destroying never throw, and
/// erasing and destroying allocate nothing.
///
/// The entries are stored next to each other in one block as long as they are added in key order and the block has room. Such a
/// map costs one allocation, plus one for each key that the library does not write itself: the keys of its own fields are
/// stored once for all maps. An empty map costs none. The memory of erased entries is kept for new entries; as long as the
/// entries are in order, so are their keys. `clear` and destroying the map free all memory.
///
/// For n entries, finding one takes O(log n). As long as the entries are in order, inserting behind the last and erasing take
/// O(1). The first insertion out of order takes O(n); from then on both take O(log n). Copying, comparing and clearing take
/// O(n), and a step of an iterator O(1), but O(log n) for the first one since that insertion. `lower_bound` and `upper_bound`
/// take O(log n), and pass over what was erased there.
///
/// Threads: as a standard container, many readers or one writer.
///
/// Only the public members are promised. `Position`, `Root` and the private functions that are exported belong to the binary
/// interface all the same, because inline functions use them: changing these needs a new `SOVERSION`.
class OMBREL_API PropertyTreeMap
{
public:
    using key_type = std::string;
    using mapped_type = PropertyTree;
    using value_type = std::pair<const std::string&, PropertyTree>; // the key lives as long as the entry
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using reference = value_type&;
    using const_reference = const value_type&;

private:
    struct Root;

    // A set of pointers would need the complete type of what they point to.
    struct Ordered
    {
        value_type* entry;
    };

    // Compares keys. Defined in the library alone, which alone has use for it.
    struct OMBREL_LOCAL ByKey
    {
        using is_transparent = void;

        bool operator()(Ordered a, Ordered b) const noexcept;
        bool operator()(Ordered a, const PropertyTreeKeyView& b) const noexcept;
        bool operator()(const PropertyTreeKeyView& a, Ordered b) const noexcept;
    };

    using Order = std::set<Ordered, ByKey>;

    // What an iterator is made of. It asks the map for its neighbours at every step, so it survives every change of the map.
    class Position
    {
    public:
        Position() noexcept = default;
        explicit Position(const PropertyTreeMap* end) noexcept : map(end) {}
        Position(value_type* entryInUse, Root* itsRoot) noexcept : entry(entryInUse), root(itsRoot) {}

        Position(Order::iterator inIndex, Root* itsRoot) noexcept
            : entry(inIndex->entry), root(itsRoot), place(inIndex), hasPlace(true)
        {
        }

        // Entry is value_type, whose size is not known here.
        template <class Entry> void Next() noexcept
        {
            if (!root->IsPlain())
            {
                SearchNext();
            }
            else if (Entry* const next = static_cast<Entry*>(entry) + 1; next != root->template End<Entry>())
            {
                entry = next;
            }
            else
            {
                *this = Position(root->owner);
            }
        }

        template <class Entry> void Previous() noexcept
        {
            if (!entry || !root->IsPlain())
            {
                SearchPrevious();
            }
            else
            {
                entry = static_cast<Entry*>(entry) - 1;
            }
        }

        value_type* entry = nullptr; // null behind the last entry
        union
        {
            const PropertyTreeMap* map = nullptr; // behind the last entry
            Root* root;                           // of an entry: it stays the same when the map is moved
        };
        Order::iterator place; // in the index, if there was one when the position was made
        bool hasPlace = false;

    private:
        OMBREL_API void SearchNext() noexcept;
        OMBREL_API void SearchPrevious() noexcept;
    };

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

        reference operator*() const noexcept { return *m_position.entry; }
        pointer operator->() const noexcept { return m_position.entry; }

        Iterator& operator++() noexcept
        {
            m_position.template Next<value_type>();
            return *this;
        }

        Iterator operator++(int) noexcept
        {
            const Iterator before = *this;
            ++*this;
            return before;
        }

        Iterator& operator--() noexcept
        {
            m_position.template Previous<value_type>();
            return *this;
        }

        Iterator operator--(int) noexcept
        {
            const Iterator before = *this;
            --*this;
            return before;
        }

        friend bool operator==(const Iterator& a, const Iterator& b) noexcept
        {
            return a.m_position.entry == b.m_position.entry;
        }

    private:
        friend PropertyTreeMap;
        template <bool> friend class Iterator;

        explicit Iterator(const Position& position) noexcept : m_position(position) {}

        Position m_position;
    };

public:
    using iterator = Iterator<false>;
    using const_iterator = Iterator<true>;
    using reverse_iterator = std::reverse_iterator<iterator>;
    using const_reverse_iterator = std::reverse_iterator<const_iterator>;

    /// An empty map.
    PropertyTreeMap() noexcept = default;
    PropertyTreeMap(const PropertyTreeMap& other);
    PropertyTreeMap(PropertyTreeMap&& other) noexcept : m_root(std::exchange(other.m_root, nullptr)) { OwnRoot(); }
    ~PropertyTreeMap() { clear(); }

    PropertyTreeMap& operator=(const PropertyTreeMap& other);
    PropertyTreeMap& operator=(PropertyTreeMap&& other) noexcept;

    void swap(PropertyTreeMap& other) noexcept
    {
        std::swap(m_root, other.m_root);
        OwnRoot();
        other.OwnRoot();
    }

    friend void swap(PropertyTreeMap& a, PropertyTreeMap& b) noexcept { a.swap(b); }

    bool empty() const noexcept { return size() == 0; }
    size_type size() const noexcept { return m_root ? m_root->size : 0; }

    iterator begin() noexcept { return iterator(First()); }
    iterator end() noexcept { return iterator(Position(this)); }
    const_iterator begin() const noexcept { return const_iterator(First()); }
    const_iterator end() const noexcept { return const_iterator(Position(this)); }
    const_iterator cbegin() const noexcept { return begin(); }
    const_iterator cend() const noexcept { return end(); }

    reverse_iterator rbegin() noexcept;
    reverse_iterator rend() noexcept;
    const_reverse_iterator rbegin() const noexcept;
    const_reverse_iterator rend() const noexcept;
    const_reverse_iterator crbegin() const noexcept;
    const_reverse_iterator crend() const noexcept;

    /// Makes room for `count` entries in one block, in an empty map for exactly so many: adding them in key order then
    /// allocates nothing but their keys. On a map that has entries it is a hint.
    /// @throws std::length_error for more than 2^32 - 1 in an empty map, or for more than memory can ever hold
    void reserve(size_type count);

    /// The entry under `key`, or `end()`.
    iterator find(std::string_view key) noexcept { return iterator(Find(key)); }
    const_iterator find(std::string_view key) const noexcept { return const_iterator(Find(key)); }

    /// Whether there is an entry under `key`; `count` gives 1 or 0.
    bool contains(std::string_view key) const noexcept;
    size_type count(std::string_view key) const noexcept { return contains(key) ? 1 : 0; }

    /// The first entry whose key is not before `key`, or `end()`.
    iterator lower_bound(std::string_view key) noexcept { return iterator(LowerBound(key)); }
    const_iterator lower_bound(std::string_view key) const noexcept { return const_iterator(LowerBound(key)); }

    /// The first entry whose key is after `key`, or `end()`.
    iterator upper_bound(std::string_view key) noexcept { return iterator(UpperBound(key)); }
    const_iterator upper_bound(std::string_view key) const noexcept { return const_iterator(UpperBound(key)); }

    /// The range of the entries under `key`, which are one or none.
    std::pair<iterator, iterator> equal_range(std::string_view key) noexcept { return {lower_bound(key), upper_bound(key)}; }

    std::pair<const_iterator, const_iterator> equal_range(std::string_view key) const noexcept
    {
        return {lower_bound(key), upper_bound(key)};
    }

    /// The child under `key`.
    /// @throws std::out_of_range "invalid map<K, T> key" if there is none
    PropertyTree& at(std::string_view key);
    const PropertyTree& at(std::string_view key) const;

    /// The child under `key`, inserted as a null tree if missing. A key that comes after all others is not searched for.
    PropertyTree& operator[](std::string_view key);

    /// Inserts `value` under `key`. If the key is there already, the map and `value` stay as they are. The result is the entry
    /// and whether it is new, as it is for all of the following.
    std::pair<iterator, bool> try_emplace(std::string_view key, PropertyTree&& value);
    std::pair<iterator, bool> try_emplace(std::string_view key, const PropertyTree& value);

    /// Inserts `value` under `key`. If the key is there already, `value` replaces its child.
    std::pair<iterator, bool> insert_or_assign(std::string_view key, PropertyTree&& value);
    std::pair<iterator, bool> insert_or_assign(std::string_view key, const PropertyTree& value);

    /// Inserts `entry` unless its key is there already.
    std::pair<iterator, bool> insert(std::pair<const std::string, PropertyTree> entry);

    /// The same for the entries from `first` to the one before `last`. If one throws, those that were inserted before it stay.
    template <std::input_iterator It, std::sentinel_for<It> End> void insert(It first, End last);

    /// Inserts the entry that `arguments` construct unless its key is there already. Of a key and a value no pair is made.
    template <class... Arguments> std::pair<iterator, bool> emplace(Arguments&&... arguments);

    /// Inserts `value` under `key` unless there is one already.
    template <std::convertible_to<std::string_view> Key, class Value>
    requires(!PropertyTreeNoKey<std::remove_cvref_t<Key>>) std::pair<iterator, bool> emplace(Key&& key, Value&& value)
    {
        return try_emplace(std::string_view(key), std::forward<Value>(value));
    }

    /// Erases the entry, and gives the one after it or `end()`.
    iterator erase(const_iterator position) noexcept;

    /// Erases the entries from `first` to the one before `last`, and gives `last`.
    iterator erase(const_iterator first, const_iterator last) noexcept;

    /// Erases the entry under `key`, and gives how many that were: 1 or 0.
    size_type erase(std::string_view key) noexcept;

    /// Erases all entries and frees all memory.
    void clear() noexcept { Clear(0); }

    /// Equal keys with equal children.
    friend OMBREL_API bool operator==(const PropertyTreeMap& a, const PropertyTreeMap& b);

    // A null pointer, or a literal 0, is no key.
    template <PropertyTreeNoKey Key> void find(Key) = delete;
    template <PropertyTreeNoKey Key> void find(Key) const = delete;
    template <PropertyTreeNoKey Key> void contains(Key) const = delete;
    template <PropertyTreeNoKey Key> void count(Key) const = delete;
    template <PropertyTreeNoKey Key> void lower_bound(Key) = delete;
    template <PropertyTreeNoKey Key> void lower_bound(Key) const = delete;
    template <PropertyTreeNoKey Key> void upper_bound(Key) = delete;
    template <PropertyTreeNoKey Key> void upper_bound(Key) const = delete;
    template <PropertyTreeNoKey Key> void equal_range(Key) = delete;
    template <PropertyTreeNoKey Key> void equal_range(Key) const = delete;
    template <PropertyTreeNoKey Key> void at(Key) = delete;
    template <PropertyTreeNoKey Key> void at(Key) const = delete;
    template <PropertyTreeNoKey Key> void operator[](Key) = delete;
    template <PropertyTreeNoKey Key, class Value> void try_emplace(Key, Value&&) = delete;
    template <PropertyTreeNoKey Key, class Value> void insert_or_assign(Key, Value&&) = delete;
    template <PropertyTreeNoKey Key, class Value> void emplace(Key, Value&&) = delete;
    template <PropertyTreeNoKey Key> void erase(Key) = delete;

private:
    friend PropertyTree;
    friend class PropertyTreeMapFiller;
    friend class PropertyTreeMapWalk;

    // Not exported; defined in headers that are not installed.
    class Index;
    struct Internals;
    struct Where;

    // The header of every block of slots but the first, and of an index, which has none.
    struct Block
    {
        Block* next;
        size_type capacity;
    };

    // The header of the first block. The slots of the entries follow it.
    struct Root
    {
        value_type* Slots() noexcept { return reinterpret_cast<value_type*>(this + 1); }
        template <class Entry> Entry* End() noexcept { return static_cast<Entry*>(Slots()) + used; }

        // Whether the entries are in order in the first slots, with no gap between them.
        bool IsPlain() const noexcept { return used == size; }

        size_type size;               // entries
        std::uint32_t used;           // slots with entries and gaps; with an index 0
        std::uint32_t capacity;       // slots in this block
        Block* index;                 // of class Index; null as long as the entries are in order in the first slots
        const PropertyTreeMap* owner; // whose entries these are
    };

    // For a root that was another map's.
    void OwnRoot() noexcept
    {
        if (m_root)
        {
            m_root->owner = this;
        }
    }

    Position First() const noexcept
    {
        return m_root && m_root->IsPlain() && m_root->size != 0 ? Position(m_root->Slots(), m_root) : SearchFirst();
    }

    // Exported for the functions above.
    Position SearchFirst() const noexcept;
    Position Find(std::string_view key) const noexcept;
    Position LowerBound(std::string_view key) const noexcept;
    Position UpperBound(std::string_view key) const noexcept;
    void Release(int depth) noexcept;

    // The map is `depth` containers below the one that is destroyed as a whole.
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
