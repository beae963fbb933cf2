#include "PropertyTree/PropertyTree.h"

#include <iterator>
#include <stdexcept>
#include <string>

namespace Ombrel
{
namespace
{

const char* NameOf(const PropertyTree& tree)
{
    if (tree.isNull())
    {
        return "null";
    }
    if (tree.isScalar())
    {
        return "a scalar";
    }
    return tree.isList() ? "a list" : "a map";
}

[[noreturn]] void ThrowState(const char* expected, const PropertyTree& found)
{
    throw std::invalid_argument(std::string("tree: expected ") + expected + ", found " + NameOf(found));
}

bool IsContainer(const PropertyTree& tree)
{
    return !tree.isNull() && !tree.isScalar();
}

// The four functions below see a map and a list alike, as a row of children.

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

template <class Visit> bool AllChildren(const PropertyTree& tree, Visit visit)
{
    if (tree.isList())
    {
        for (const PropertyTree& child : tree.getList())
        {
            if (!visit(child))
            {
                return false;
            }
        }
    }
    else if (IsContainer(tree))
    {
        for (const auto& entry : tree.getMap())
        {
            if (!visit(entry.second))
            {
                return false;
            }
        }
    }
    return true;
}

// Empties a tree of any depth without recursion and without memory. It always works at the last child. A child that has
// children of its own is turned over with its parent: the child becomes the top, its first child takes the place that it
// had, and the old top hangs where that first child was. So each container is turned over at most once, and every step
// after that drops a childless child or an emptied top.
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

// Copies a tree of any depth: the containers still to be filled wait in a list. Their places do not move, since a target
// gets all its children at once.
void CopyChildren(const PropertyTree& source, PropertyTree& target)
{
    std::vector<std::pair<const PropertyTree*, PropertyTree*>> pending;
    const auto copy = [&pending](const PropertyTree& from, PropertyTree& to)
    {
        if (from.isScalar())
        {
            to = from.getScalar();
        }
        else if (!from.isNull())
        {
            pending.emplace_back(&from, &to);
        }
    };
    copy(source, target);
    while (!pending.empty())
    {
        const auto [from, to] = pending.back();
        pending.pop_back();
        if (from->isList())
        {
            to->convertToList();
            PropertyTree::List& list = to->getList();
            list.resize(from->getList().size());
            for (std::size_t i = 0; i < list.size(); ++i)
            {
                copy(from->getList()[i], list[i]);
            }
        }
        else
        {
            to->convertToMap();
            for (const auto& [key, child] : from->getMap())
            {
                copy(child, to->getMap()[key]);
            }
        }
    }
}

} // namespace

PropertyTree::PropertyTree() noexcept = default;

PropertyTree::PropertyTree(const PropertyTree& other) : PropertyTree()
{
    CopyChildren(other, *this); // the delegated-to constructor is done, so a failure in here runs the destructor
}

PropertyTree::PropertyTree(PropertyTree&& other) noexcept
{
    m_content.swap(other.m_content);
}

PropertyTree::PropertyTree(PropertyTreeScalar scalar) noexcept : m_content(std::move(scalar)) {}

PropertyTree::~PropertyTree()
{
    // A tree of one level needs no care, and most trees are of one level.
    if (!AllChildren(*this, [](const PropertyTree& child) { return ChildCount(child) == 0; }))
    {
        Dismantle(*this);
    }
}

PropertyTree& PropertyTree::operator=(const PropertyTree& other)
{
    PropertyTree(other).swap(*this);
    return *this;
}

PropertyTree& PropertyTree::operator=(PropertyTree&& other) noexcept
{
    PropertyTree(std::move(other)).swap(*this);
    return *this;
}

void PropertyTree::swap(PropertyTree& other) noexcept
{
    m_content.swap(other.m_content);
}

bool PropertyTree::contains(std::string_view key) const noexcept
{
    const Map* map = std::get_if<Map>(&m_content);
    return map && map->contains(key);
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

PropertyTree::Map& PropertyTree::getMap()
{
    Map* map = std::get_if<Map>(&m_content);
    if (!map)
    {
        ThrowState("a map", *this);
    }
    return *map;
}

const PropertyTree::Map& PropertyTree::getMap() const
{
    const Map* map = std::get_if<Map>(&m_content);
    if (!map)
    {
        ThrowState("a map", *this);
    }
    return *map;
}

PropertyTree::List& PropertyTree::getList()
{
    List* list = std::get_if<List>(&m_content);
    if (!list)
    {
        ThrowState("a list", *this);
    }
    return *list;
}

const PropertyTree::List& PropertyTree::getList() const
{
    const List* list = std::get_if<List>(&m_content);
    if (!list)
    {
        ThrowState("a list", *this);
    }
    return *list;
}

const PropertyTreeScalar& PropertyTree::getScalar() const
{
    const PropertyTreeScalar* scalar = std::get_if<PropertyTreeScalar>(&m_content);
    if (!scalar)
    {
        ThrowState("a scalar", *this);
    }
    return *scalar;
}

void PropertyTree::convertToMap() noexcept
{
    if (!std::holds_alternative<Map>(m_content))
    {
        PropertyTree old(std::move(*this));
        m_content.emplace<Map>();
    }
}

void PropertyTree::convertToList() noexcept
{
    if (!isList())
    {
        PropertyTree old(std::move(*this));
        m_content.emplace<List>();
    }
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
    std::vector<std::pair<const PropertyTree*, const PropertyTree*>> pending;
    const auto differ = [&pending](const PropertyTree& left, const PropertyTree& right)
    {
        if (left.m_content.index() != right.m_content.index())
        {
            return true;
        }
        if (IsContainer(left))
        {
            pending.emplace_back(&left, &right);
            return false;
        }
        return left.isScalar() && !(left.getScalar() == right.getScalar());
    };
    if (differ(a, b))
    {
        return false;
    }
    while (!pending.empty())
    {
        const auto [left, right] = pending.back();
        pending.pop_back();
        if (ChildCount(*left) != ChildCount(*right))
        {
            return false;
        }
        if (left->isList())
        {
            for (std::size_t i = 0; i < left->getList().size(); ++i)
            {
                if (differ(left->getList()[i], right->getList()[i]))
                {
                    return false;
                }
            }
            continue;
        }
        auto other = right->getMap().begin();
        for (const auto& [key, child] : left->getMap())
        {
            if (key != other->first || differ(child, other->second))
            {
                return false;
            }
            ++other;
        }
    }
    return true;
}

} // namespace Ombrel
