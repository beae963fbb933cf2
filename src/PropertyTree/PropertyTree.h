#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_H

#include "OmbrelExport.h"
#include "PropertyTree/PropertyTreeMap.h"
#include "PropertyTree/PropertyTreeScalar.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
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
    using Map = PropertyTreeMap;
    using List = std::vector<PropertyTree>;

    PropertyTree() noexcept : m_null{STATE_NULL} {}
    PropertyTree(const PropertyTree& other);

    PropertyTree(PropertyTree&& other) noexcept : PropertyTree()
    {
        if (!other.isNull())
        {
            Take(other);
        }
    }

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
    PropertyTree& operator=(PropertyTree&& other) noexcept;

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

    bool isNull() const noexcept { return State() == STATE_NULL; }
    bool isScalar() const noexcept { return State() != STATE_NULL && State() <= STATE_TEXT; }
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
        return m_list.content;
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
    void convertToList() noexcept;

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

    // The state of a scalar is the number of its kind.
    static constexpr std::uint8_t STATE_NULL = 0;
    static constexpr std::uint8_t STATE_TEXT = static_cast<std::uint8_t>(PropertyTreeScalar::Kind::String);
    static constexpr std::uint8_t STATE_MAP = STATE_TEXT + 1;
    static constexpr std::uint8_t STATE_LIST = STATE_TEXT + 2;

    struct Null
    {
        std::uint8_t state;
    };

    struct MapNode
    {
        std::uint8_t state;
        Map content;
    };

    struct ListNode
    {
        std::uint8_t state;
        List content;
    };

    // Every member begins with the state, which may therefore be read through any of them.
    std::uint8_t State() const noexcept { return m_null.state; }
    bool HoldsMemory() const noexcept { return State() >= STATE_TEXT; }

    [[noreturn]] void Refuse(const char* expected) const;

    // Makes the tree null. The tree is `depth` containers below the one that is destroyed as a whole.
    void Clear(int depth = 0) noexcept
    {
        if (HoldsMemory())
        {
            Release(depth);
        }
        ::new (static_cast<void*>(&m_null)) Null{STATE_NULL};
    }

    OMBREL_LOCAL void SetMap(Map&& map) noexcept;
    OMBREL_LOCAL void SetList(List&& list) noexcept;
    void Take(PropertyTree& other) noexcept;
    void Release(int depth) noexcept;

    union
    {
        Null m_null;
        PropertyTreeScalar m_scalar;
        MapNode m_map;
        ListNode m_list;
    };
};

// Members of the map that need the complete type of the children.

template <std::input_iterator It, std::sentinel_for<It> End> void PropertyTreeMap::insert(It first, End last)
{
    for (; first != last; ++first)
    {
        insert(value_type(*first));
    }
}

template <class... Arguments> std::pair<PropertyTreeMap::iterator, bool> PropertyTreeMap::emplace(Arguments&&... arguments)
{
    return insert(value_type(std::forward<Arguments>(arguments)...));
}

} // namespace Ombrel

#endif
