#include "PropertyTree/PropertyTree.h"

#include "OmbrelCompiler.h"
#include "PropertyTree/KindNames.h"
#include "PropertyTree/PropertyTreeMapFiller.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>

namespace Ombrel
{

// The state of a tree is read through `m_null` whichever member is active: the members are standard-layout structs with a
// common initial sequence. So a scalar needs no wrapper, and a tree is no larger than one.
static_assert(std::is_standard_layout_v<PropertyTree> && sizeof(PropertyTree) == 2 * sizeof(std::uint64_t));

namespace
{

// So many levels are copied, compared and destroyed by recursion, which is fast. Deeper levels, which may go on as far as
// memory allows, are noted and handled later in a loop.
constexpr int RECURSION_LIMIT = 32;

bool IsContainer(const PropertyTree& tree)
{
    return tree.isMap() || tree.isList();
}

// The four functions below treat maps and lists alike, as a sequence of children.

std::size_t ChildCount(const PropertyTree& tree)
{
    if (!IsContainer(tree))
    {
        return 0;
    }
    return tree.isList() ? tree.getList().size() : tree.getMap().size();
}

PropertyTree& FirstChild(PropertyTree& tree)
{
    return tree.isList() ? tree.getList().front() : tree.getMap().begin()->second;
}

PropertyTree& LastChild(PropertyTree& tree)
{
    return tree.isList() ? tree.getList().back() : std::prev(tree.getMap().end())->second;
}

void PopLastChild(PropertyTree& tree)
{
    if (tree.isList())
    {
        tree.getList().pop_back();
    }
    else
    {
        tree.getMap().erase(std::prev(tree.getMap().end()));
    }
}

// Empties a tree of any depth without recursion and without allocating. It always looks at the last child of the top. A last
// child without children is removed. A last child with children changes places with its parent: it becomes the top, its first
// child moves to its old place in the parent, and the parent moves to the place of that first child. So each container becomes
// the top at most once, and every other step removes a child.
void Dismantle(PropertyTree& top) noexcept
{
    while (ChildCount(top) != 0)
    {
        PropertyTree& last = LastChild(top);
        if (ChildCount(last) == 0)
        {
            PopLastChild(top);
            continue;
        }
        PropertyTree lower = std::move(last);
        if (ChildCount(top) > 1)
        {
            PropertyTree& first = FirstChild(lower);
            last = std::move(first);
            first = std::move(top);
        }
        top = std::move(lower);
    }
}

class Comparison
{
public:
    bool AreEqual(const PropertyTree& a, const PropertyTree& b)
    {
        bool areEqual = AreEqual(a, b, 0);
        while (areEqual && !m_pending.empty())
        {
            const auto [left, right] = m_pending.back();
            m_pending.pop_back();
            areEqual = AreEqual(*left, *right, 0);
        }
        return areEqual;
    }

private:
    // The compiler would otherwise put it into itself several times.
    OMBREL_NOINLINE bool AreEqual(const PropertyTree& a, const PropertyTree& b, int depth)
    {
        if (a.isScalar())
        {
            return b.isScalar() && a.getScalar() == b.getScalar();
        }
        if (a.isNull() || b.isNull() || b.isScalar() || a.isList() != b.isList())
        {
            return a.isNull() && b.isNull();
        }
        if (ChildCount(a) != ChildCount(b))
        {
            return false;
        }
        if (depth == RECURSION_LIMIT)
        {
            m_pending.emplace_back(&a, &b);
            return true;
        }
        if (a.isList())
        {
            return std::equal(a.getList().begin(), a.getList().end(), b.getList().begin(),
                              [&](const auto& left, const auto& right) { return AreEqual(left, right, depth + 1); });
        }
        bool areEqual = true;
        const auto compare = [&](auto left, auto right)
        {
            for (; areEqual && !left.IsAtEnd(); left.Next(), right.Next())
            {
                areEqual = left.Key() == right.Key() && AreEqual(left.entry->second, right.entry->second, depth + 1);
            }
        };
        PropertyTreeMapWalk::Through(a.getMap(), [&](auto left)
                                     { PropertyTreeMapWalk::Through(b.getMap(), [&](auto right) { compare(left, right); }); });
        return areEqual;
    }

    std::vector<std::pair<const PropertyTree*, const PropertyTree*>> m_pending;
};

} // namespace

class PropertyTree::Copying
{
public:
    /// @param target null; holds a part of the copy after a failure
    void Copy(const PropertyTree& source, PropertyTree& target)
    {
        Copy(source, target, 0);
        while (!m_pending.empty())
        {
            const auto [from, to] = m_pending.back();
            m_pending.pop_back();
            Copy(*from, *to, 0);
        }
    }

private:
    // Most children are scalars without memory, which take no call.
    void CopyChild(const PropertyTree& source, PropertyTree& target, int depth)
    {
        if (source.HoldsMemory())
        {
            Copy(source, target, depth);
        }
        else
        {
            target.CopyWords(source);
        }
    }

    // The pending targets do not move, since every container has room for all its children from the beginning.
    void Copy(const PropertyTree& source, PropertyTree& target, int depth)
    {
        if (!source.isMap() && !source.isList())
        {
            target = source.isScalar() ? PropertyTree(source.m_scalar) : PropertyTree();
        }
        else if (depth == RECURSION_LIMIT)
        {
            m_pending.emplace_back(&source, &target);
        }
        else if (source.isList())
        {
            const List& elements = *source.m_list.content;
            List& list = target.makeList(elements.size());
            for (const PropertyTree& child : elements)
            {
                CopyChild(child, list.emplace_back(), depth + 1);
            }
        }
        else
        {
            PropertyTreeMapFiller copy(target.makeMap(), source.m_map.content.size());
            PropertyTreeMapWalk::Through(source.m_map.content,
                                         [&](auto walk)
                                         {
                                             for (; !walk.IsAtEnd(); walk.Next())
                                             {
                                                 CopyChild(walk.entry->second, copy.AppendCopy(walk.Key()), depth + 1);
                                             }
                                         });
        }
    }

    std::vector<std::pair<const PropertyTree*, PropertyTree*>> m_pending;
};

PropertyTree::PropertyTree(const PropertyTree& other) : PropertyTree()
{
    Copying().Copy(other, *this); // if it fails, the destructor runs, as the default constructor is done
}

PropertyTree& PropertyTree::operator=(const PropertyTree& other)
{
    return *this = PropertyTree(other);
}

void PropertyTree::swap(PropertyTree& other) noexcept
{
    PropertyTree held;
    held.Take(other);
    other.Take(*this);
    Take(held);
}

bool PropertyTree::contains(std::string_view key) const noexcept
{
    return isMap() && m_map.content.contains(key);
}

PropertyTree& PropertyTree::operator[](std::string_view key)
{
    if (isNull())
    {
        convertToMap();
    }
    return getMap()[key];
}

const PropertyTree& PropertyTree::operator[](std::string_view key) const
{
    return getMap().at(key);
}

void PropertyTree::convertToMap() noexcept
{
    if (!isMap())
    {
        SetMap(Map());
    }
}

void PropertyTree::convertToList()
{
    if (!isList())
    {
        SetList(new List());
    }
}

PropertyTree::Map& PropertyTree::makeMap(std::size_t count)
{
    Map map;
    map.reserve(count);
    SetMap(std::move(map));
    return m_map.content;
}

PropertyTree::List& PropertyTree::makeList(std::size_t count)
{
    auto list = std::make_unique<List>();
    list->reserve(count);
    SetList(list.release());
    return *m_list.content;
}

void PropertyTree::append(PropertyTree element)
{
    if (isNull())
    {
        convertToList();
    }
    getList().push_back(std::move(element));
}

bool operator==(const PropertyTree& a, const PropertyTree& b)
{
    return Comparison().AreEqual(a, b);
}

void PropertyTree::Refuse(const char* expected) const
{
    throw std::invalid_argument(std::string("tree: expected ") + expected + ", found " + NameOfState(*this));
}

void PropertyTree::SetMap(Map&& map) noexcept
{
    Clear();
    ::new (static_cast<void*>(&m_map)) MapNode{STATE_MAP, std::move(map)};
}

void PropertyTree::SetList(List* list) noexcept
{
    Clear();
    ::new (static_cast<void*>(&m_list)) ListNode{STATE_LIST, list};
}

// Destroys the content and leaves the tree without a state: the caller must set one.
void PropertyTree::Release(int depth) noexcept
{
    if (isScalar())
    {
        std::destroy_at(&m_scalar);
        return;
    }
    if (depth == RECURSION_LIMIT)
    {
        Dismantle(*this);
    }
    if (isList())
    {
        for (PropertyTree& element : *m_list.content)
        {
            element.Clear(depth + 1);
        }
        delete m_list.content;
    }
    else
    {
        m_map.content.Clear(depth);
        std::destroy_at(&m_map);
    }
}

} // namespace Ombrel
