#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_H

#include "Export.h"
#include "PropertyTree/PropertyTreeMap.h"
#include "PropertyTree/PropertyTreeScalar.h"

#include <concepts>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace Ombrel
{

/// The stored form of an object: a value that is null, a scalar, an ordered map or a list of trees.
///
/// Copies are deep, a moved-from tree is null. Every assignment equals "copy or take the right side first, then assign", so
/// a tree may be assigned from its own child. No operation recurses: trees may nest as deep as memory allows, and destroying
/// one needs no memory. Copying has the strong guarantee.
///
/// An operation on a tree in the wrong state throws `std::invalid_argument`, which names what was expected and what is there.
///
/// Threads: as a standard container, many readers or one writer.
class OMBREL_API PropertyTree
{
public:
    using Map = PropertyTreeMap;
    using List = std::vector<PropertyTree>;

    PropertyTree() noexcept;
    PropertyTree(const PropertyTree& other);
    PropertyTree(PropertyTree&& other) noexcept;
    PropertyTree(PropertyTreeScalar scalar) noexcept;

    /// Anything that makes a scalar makes a scalar tree: `tree["radius"] = 3`.
    template <class T>
    requires(std::constructible_from<PropertyTreeScalar, T> && !std::same_as<std::remove_cvref_t<T>, PropertyTree> &&
             !std::same_as<std::remove_cvref_t<T>, PropertyTreeScalar>) PropertyTree(T&& value)
        : PropertyTree(PropertyTreeScalar(std::forward<T>(value)))
    {
    }

    ~PropertyTree();

    PropertyTree& operator=(const PropertyTree& other);
    PropertyTree& operator=(PropertyTree&& other) noexcept;

    void swap(PropertyTree& other) noexcept;
    friend void swap(PropertyTree& a, PropertyTree& b) noexcept { a.swap(b); }

    bool isNull() const noexcept { return std::holds_alternative<std::monostate>(m_content); }
    bool isScalar() const noexcept { return std::holds_alternative<PropertyTreeScalar>(m_content); }
    bool isList() const noexcept { return std::holds_alternative<List>(m_content); }

    /// True if the tree is a map that holds `key`; false in any other state.
    bool contains(std::string_view key) const noexcept;

    /// The child under `key`, inserted as null if missing; a null tree first becomes an empty map.
    /// @throws std::invalid_argument on a scalar or a list
    PropertyTree& operator[](std::string_view key);

    /// The existing child under `key`.
    /// @throws std::out_of_range "invalid map<K, T> key" if there is none
    /// @throws std::invalid_argument on anything but a map
    const PropertyTree& operator[](std::string_view key) const;

    /// The map itself. The reference lives until the tree is assigned, converted or destroyed; so with the two below.
    /// @throws std::invalid_argument on anything but a map
    Map& getMap();
    const Map& getMap() const;

    /// The list itself.
    /// @throws std::invalid_argument on anything but a list
    List& getList();
    const List& getList() const;

    /// The scalar itself.
    /// @throws std::invalid_argument on anything but a scalar
    const PropertyTreeScalar& getScalar() const;

    /// Makes the tree a map: a map keeps its entries, any other state becomes an empty map.
    void convertToMap() noexcept;

    /// Makes the tree a list: a list keeps its elements, any other state becomes an empty list.
    void convertToList() noexcept;

    /// Adds `element` at the end of the list; a null tree first becomes an empty list.
    /// @throws std::invalid_argument on a scalar or a map
    void append(PropertyTree element);

    /// Equal state and equal content at every level; scalars as `PropertyTreeScalar` compares them.
    friend OMBREL_API bool operator==(const PropertyTree& a, const PropertyTree& b);

private:
    std::variant<std::monostate, PropertyTreeScalar, Map, List> m_content;
};

} // namespace Ombrel

#endif
