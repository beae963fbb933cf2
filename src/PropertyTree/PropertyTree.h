#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_H

#include "OmbrelExport.h"
#include "PropertyTree/PropertyTreeMap.h"
#include "PropertyTree/PropertyTreeScalar.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Ombrel
{

/// The stored form of an object: a value that is null, a scalar, an ordered map or a list of trees.
///
/// Copies are deep, and a moved-from tree is null. A tree may be assigned from its own child or any other part of itself, by
/// copy or by move: the right side is copied or taken before the left side changes. A tree must not be moved or swapped into a
/// part of itself.
///
/// A list is a `std::vector` and follows its rules. Assigning the list from a list inside one of its own elements,
/// `list = list[0].getList()`, is undefined, by copy and by move. Safe are: assigning the tree that has the list,
/// `tree = tree.getList()[0]` or `tree = std::move(tree.getList()[0])`; making a copy first, `list = List(list[0].getList())`;
/// and moving the inner list out first, `List inner = std::move(list[0].getList())` and then `list = std::move(inner)`.
///
/// No operation recurses: trees may be nested as deep as memory allows, and destroying one needs no memory. Copying has the
/// strong guarantee.
///
/// An operation on a tree in the wrong state throws `std::invalid_argument`, which names the expected and the actual state.
///
/// Threads: as a standard container, many readers or one writer.
class OMBREL_API PropertyTree
{
public:
    /// What `getMap` and `getList` give.
    using Map = PropertyTreeMap;
    using List = std::vector<PropertyTree>;

    /// A null tree.
    PropertyTree() noexcept : m_null{} {}

    PropertyTree(const PropertyTree& other);

    PropertyTree(PropertyTree&& other) noexcept : PropertyTree() { Take(other); }

    /// A scalar tree.
    PropertyTree(PropertyTreeScalar scalar) noexcept : m_scalar(std::move(scalar)) {}

    /// Anything that makes a scalar makes a scalar tree: `tree["radius"] = 3`.
    template <class T>
    requires(std::constructible_from<PropertyTreeScalar, T> && !std::same_as<std::remove_cvref_t<T>, PropertyTree> &&
             !std::same_as<std::remove_cvref_t<T>, PropertyTreeScalar>) PropertyTree(T&& value)
        : m_scalar(std::forward<T>(value))
    {
    }

    // A null pointer is no text, and a single character no number.
    template <std::same_as<std::nullptr_t> T> PropertyTree(T) = delete;
    template <PropertyTreeCharacter T> PropertyTree(T) = delete;

    ~PropertyTree()
    {
        if (HoldsMemory())
        {
            Release(0);
        }
    }

    PropertyTree& operator=(const PropertyTree& other);

    PropertyTree& operator=(PropertyTree&& other) noexcept
    {
        PropertyTree taken(std::move(other)); // first, since it may be a part of this tree
        Clear();
        Take(taken);
        return *this;
    }

    /// A scalar tree of `value`, which may stand in this tree.
    template <class T>
    requires(std::constructible_from<PropertyTreeScalar, T> &&
             !std::same_as<std::remove_cvref_t<T>, PropertyTree>) PropertyTree&
    operator=(T&& value)
    {
        PropertyTreeScalar scalar(std::forward<T>(value)); // first, since `value` may be a part of this tree
        Clear();
        ::new (static_cast<void*>(&m_scalar)) PropertyTreeScalar(std::move(scalar));
        return *this;
    }

    void swap(PropertyTree& other) noexcept;
    friend void swap(PropertyTree& a, PropertyTree& b) noexcept { a.swap(b); }

    /// The state of the tree: exactly one of the four is true.
    bool isNull() const noexcept { return State() == STATE_NULL; }
    bool isScalar() const noexcept
    {
        return (State() & PropertyTreeScalar::KIND) - 1 < STATE_TEXT; // null wraps around
    }
    bool isMap() const noexcept { return State() == STATE_MAP; }
    bool isList() const noexcept { return State() == STATE_LIST; }

    /// True if the tree is a map that holds `key`; false in any other state.
    bool contains(std::string_view key) const noexcept;

    /// The child under `key`, inserted as null if missing; a null tree first becomes an empty map.
    /// @throws std::invalid_argument on a scalar or a list
    PropertyTree& operator[](std::string_view key);

    /// The existing child under `key`.
    /// @throws std::out_of_range "invalid map<K, T> key" if there is none
    /// @throws std::invalid_argument on anything but a map
    const PropertyTree& operator[](std::string_view key) const;

    // A null pointer, or a literal 0, is no key.
    template <PropertyTreeNoKey Key> void contains(Key) const = delete;
    template <PropertyTreeNoKey Key> void operator[](Key) = delete;
    template <PropertyTreeNoKey Key> void operator[](Key) const = delete;

    /// The map itself. The reference is valid until the tree is assigned, converted or destroyed. The same holds for the list
    /// and the scalar.
    /// @throws std::invalid_argument on anything but a map
    Map& getMap()
    {
        if (!isMap())
        {
            Refuse("a map");
        }
        return m_map.content;
    }

    const Map& getMap() const { return const_cast<PropertyTree&>(*this).getMap(); }

    /// The list itself.
    /// @throws std::invalid_argument on anything but a list
    List& getList()
    {
        if (!isList())
        {
            Refuse("a list");
        }
        return *m_list.content;
    }

    const List& getList() const { return const_cast<PropertyTree&>(*this).getList(); }

    /// The scalar itself.
    /// @throws std::invalid_argument on anything but a scalar
    const PropertyTreeScalar& getScalar() const
    {
        if (!isScalar())
        {
            Refuse("a scalar");
        }
        return m_scalar;
    }

    /// Makes the tree a map: a map keeps its entries, any other state becomes an empty map.
    void convertToMap() noexcept;

    /// Makes the tree a list: a list keeps its elements, any other state becomes an empty list.
    /// @throws std::bad_alloc; the tree is then unchanged
    void convertToList();

    /// Makes the tree an empty map with room for `count` entries, whatever it held.
    /// @throws std::length_error as `Map::reserve`; the tree is then unchanged, as it is when memory is missing
    Map& makeMap(std::size_t count = 0);

    /// Makes the tree an empty list with room for `count` elements, whatever it held.
    /// @throws std::length_error as `List::reserve`; the tree is then unchanged, as it is when memory is missing
    List& makeList(std::size_t count = 0);

    /// Adds `element` at the end of the list; a null tree first becomes an empty list.
    /// @throws std::invalid_argument on a scalar or a map
    void append(PropertyTree element);

    /// Equal state and equal content at every level; scalars as `PropertyTreeScalar` compares them.
    friend OMBREL_API bool operator==(const PropertyTree& a, const PropertyTree& b);

private:
    friend Map;
    class Copying;

    // The state of a scalar is the number of its kind, with a mark if its text is a known one.
    static constexpr std::uint64_t STATE_NULL = 0;
    static constexpr std::uint64_t STATE_TEXT = PropertyTreeScalar::Number(PropertyTreeScalar::Kind::String);
    static constexpr std::uint64_t STATE_MAP = STATE_TEXT + 1;
    static constexpr std::uint64_t STATE_LIST = STATE_TEXT + 2;
    static constexpr std::uint64_t STATE_GAP = STATE_TEXT + 3; // what the map leaves in the place of an erased child

    struct Null
    {
        std::uint64_t state = STATE_NULL;
        std::uint64_t nothing = 0; // so that a tree may be copied word by word whatever it holds
    };

    struct MapNode
    {
        std::uint64_t state;
        Map content;
    };

    struct ListNode
    {
        std::uint64_t state;
        List* content;
    };

    struct Gap
    {
        std::uint64_t state;
        std::size_t length; // in the first and the last gap of a row, how many gaps the row has
    };

    // Every member begins with the state, which may therefore be read through any of them.
    std::uint64_t State() const noexcept { return m_null.state; }
    bool HoldsMemory() const noexcept { return State() - STATE_TEXT <= STATE_LIST - STATE_TEXT; }

    [[noreturn]] void Refuse(const char* expected) const;

    // Makes the tree null. The tree is `depth` containers below the one that is destroyed as a whole.
    void Clear(int depth = 0) noexcept
    {
        if (HoldsMemory())
        {
            Release(depth);
        }
        ::new (static_cast<void*>(&m_null)) Null{};
    }

    // Makes this tree, which must hold no memory, the same bytes as `other`. Word by word, since most trees were written word
    // by word just before.
    void CopyWords(const PropertyTree& other) noexcept
    {
        constexpr std::size_t word = sizeof(std::uint64_t);
        std::uint64_t state;
        std::uint64_t content;
        std::memcpy(&state, &other, word);
        std::memcpy(&content, reinterpret_cast<const char*>(&other) + word, word);
        std::memcpy(static_cast<void*>(this), &state, word);
        std::memcpy(reinterpret_cast<char*>(this) + word, &content, word);
    }

    // Moves the content of `other` into this tree, which must hold no memory, and leaves null.
    void Take(PropertyTree& other) noexcept
    {
        CopyWords(other);
        ::new (static_cast<void*>(&other.m_null)) Null{};
        if (isMap())
        {
            m_map.content.OwnRoot();
        }
    }

    OMBREL_LOCAL void SetMap(Map&& map) noexcept;
    OMBREL_LOCAL void SetList(List* list) noexcept;
    void Release(int depth) noexcept;

    union
    {
        Null m_null;
        PropertyTreeScalar m_scalar;
        MapNode m_map;
        ListNode m_list;
        Gap m_gap;
    };
};

// Members of the map that need the complete type of the children.

inline auto PropertyTreeMap::rbegin() noexcept -> reverse_iterator
{
    return reverse_iterator(end());
}
inline auto PropertyTreeMap::rend() noexcept -> reverse_iterator
{
    return reverse_iterator(begin());
}
inline auto PropertyTreeMap::rbegin() const noexcept -> const_reverse_iterator
{
    return const_reverse_iterator(end());
}
inline auto PropertyTreeMap::rend() const noexcept -> const_reverse_iterator
{
    return const_reverse_iterator(begin());
}
inline auto PropertyTreeMap::crbegin() const noexcept -> const_reverse_iterator
{
    return rbegin();
}
inline auto PropertyTreeMap::crend() const noexcept -> const_reverse_iterator
{
    return rend();
}

/// Erases the entries for which `predicate` is true, and gives how many that were. If `predicate` throws, the entries that were
/// erased before stay erased.
template <class Predicate> PropertyTreeMap::size_type erase_if(PropertyTreeMap& map, Predicate predicate)
{
    const PropertyTreeMap::size_type before = map.size();
    for (auto position = map.begin(); position != map.end();)
    {
        position = predicate(*position) ? map.erase(position) : std::next(position);
    }
    return before - map.size();
}

template <std::input_iterator It, std::sentinel_for<It> End> void PropertyTreeMap::insert(It first, End last)
{
    for (; first != last; ++first)
    {
        auto&& entry = *first;
        try_emplace(entry.first, std::forward<decltype(entry)>(entry).second); // moved from where the iterator allows it
    }
}

template <class... Arguments> std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::emplace(Arguments&&... arguments)
{
    return insert(std::pair<const std::string, PropertyTree>(std::forward<Arguments>(arguments)...));
}

} // namespace Ombrel

#endif
