#include "Inspection/TreeEditor.h"

#include "Inspection/Changes.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

constexpr std::size_t LONGEST_CLOSED = 64; // elements that are moved faster than they are kept elsewhere

} // namespace

const TreeEditor::OpenList* TreeEditor::OpenOf(const PropertyTree& list) const
{
    if (m_open.empty() || !list.isList() || list.getList().empty())
    {
        return nullptr;
    }
    const auto found = m_open.find(list.getList().data());
    return found == m_open.end() ? nullptr : &found->second;
}

TreeEditor::OpenList* TreeEditor::OpenOf(const PropertyTree& list)
{
    return const_cast<OpenList*>(std::as_const(*this).OpenOf(list));
}

// Null if the list is short.
TreeEditor::OpenList* TreeEditor::Open(PropertyTree& list)
{
    if (OpenList* const open = OpenOf(list))
    {
        return open;
    }
    PropertyTree::List& elements = list.getList();
    if (elements.size() <= LONGEST_CLOSED)
    {
        return nullptr;
    }
    OpenList& open =
        m_open.try_emplace(elements.data(), OpenList{.elements = {}, .order = ElementOrder(elements.size())}).first->second;
    std::ranges::move(elements, std::back_inserter(open.elements));
    elements.erase(elements.begin() + 1, elements.end());
    return &open;
}

PropertyTree* TreeEditor::ChildAt(PropertyTree* parent, const PathStep& step)
{
    OpenList* const open = parent ? OpenOf(*parent) : nullptr;
    if (!open)
    {
        return Inspection::ChildAt(parent, step);
    }
    const std::size_t* index = std::get_if<std::size_t>(&step);
    return index && *index < open->order.Size() ? &open->elements[open->order.At(*index)] : nullptr;
}

PropertyTree* TreeEditor::Find(PropertyTree& tree, Steps steps)
{
    PropertyTree* value = &tree;
    for (const PathStep& step : steps)
    {
        value = ChildAt(value, step);
    }
    return value;
}

std::size_t TreeEditor::SizeOf(const PropertyTree& list) const
{
    const OpenList* const open = OpenOf(list);
    return open ? open->order.Size() : list.getList().size();
}

void TreeEditor::Insert(PropertyTree& list, std::size_t place, PropertyTree element)
{
    if (OpenList* const open = Open(list))
    {
        open->elements.push_back(std::move(element));
        open->order.Insert(place, open->elements.size() - 1);
        return;
    }
    PropertyTree::List& elements = list.getList();
    elements.insert(elements.begin() + static_cast<std::ptrdiff_t>(place), std::move(element));
}

PropertyTree TreeEditor::Remove(PropertyTree& list, std::size_t place)
{
    if (OpenList* const open = Open(list))
    {
        return std::move(open->elements[open->order.Remove(place)]);
    }
    PropertyTree::List& elements = list.getList();
    PropertyTree element = std::move(elements[place]);
    elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(place));
    return element;
}

void TreeEditor::Move(PropertyTree& list, std::size_t from, std::size_t to)
{
    if (OpenList* const open = Open(list))
    {
        open->order.Insert(to, open->order.Remove(from));
        return;
    }
    Insert(list, to, Remove(list, from));
}

// A list that goes must not be found again where another comes to stand in memory.
void TreeEditor::Assign(PropertyTree& value, PropertyTree other)
{
    Close(value);
    value = std::move(other);
}

bool TreeEditor::Put(PropertyTree& tree, Steps steps, const std::optional<PropertyTree>& value)
{
    if (PropertyTree* found = Find(tree, steps); found && value)
    {
        Assign(*found, *value);
        return true;
    }
    PropertyTree* around = steps.empty() ? nullptr : Find(tree, steps.first(steps.size() - 1));
    if (!around || !around->isMap() || !std::holds_alternative<std::string>(steps.back()))
    {
        return false;
    }
    const std::string& key = std::get<std::string>(steps.back());
    if (value)
    {
        (*around)[key] = *value;
    }
    else if (PropertyTree* found = ChildAt(around, steps.back()))
    {
        Close(*found);
        around->getMap().erase(key);
    }
    return true;
}

bool TreeEditor::Execute(PropertyTree& tree, Steps steps, const Change& change, const std::optional<PropertyTree>& element)
{
    if (change.kind == ChangeKind::Value)
    {
        return Put(tree, steps, element);
    }
    PropertyTree* list = steps.empty() ? nullptr : Find(tree, steps.first(steps.size() - 1));
    const std::size_t* index = steps.empty() ? nullptr : std::get_if<std::size_t>(&steps.back());
    if (!list || !list->isList() || !index || !HasPlaces(change, *index, SizeOf(*list)) ||
        (change.kind == ChangeKind::Insert && !element))
    {
        return false;
    }
    if (change.kind == ChangeKind::Insert)
    {
        Insert(*list, *index, *element);
    }
    else if (change.kind == ChangeKind::Remove)
    {
        PropertyTree removed = Remove(*list, *index);
        Close(removed);
    }
    else
    {
        Move(*list, *index, change.target);
    }
    return true;
}

const PropertyTree& TreeEditor::Plain(const PropertyTree& value, PropertyTree& copy) const
{
    if (m_open.empty() || !(value.isMap() || value.isList()))
    {
        return value;
    }
    struct Pending
    {
        const PropertyTree* from;
        PropertyTree* to;
    };
    std::vector<Pending> pending{{&value, &copy}};
    while (!pending.empty())
    {
        const auto [from, to] = pending.back();
        pending.pop_back();
        if (from->isMap())
        {
            PropertyTree::Map& map = to->makeMap(from->getMap().size());
            for (const auto& [key, child] : from->getMap())
            {
                pending.push_back({&child, &map[key]});
            }
        }
        else if (const OpenList* const open = OpenOf(*from))
        {
            PropertyTree::List& list = to->makeList();
            list.resize(open->order.Size());
            std::size_t place = 0;
            for (const std::size_t element : open->order.All())
            {
                pending.push_back({&open->elements[element], &list[place++]});
            }
        }
        else if (from->isList())
        {
            PropertyTree::List& list = to->makeList();
            list.resize(from->getList().size());
            std::size_t place = 0;
            for (const PropertyTree& element : from->getList())
            {
                pending.push_back({&element, &list[place++]});
            }
        }
        else
        {
            *to = *from;
        }
    }
    return copy;
}

void TreeEditor::Close(PropertyTree& value)
{
    std::vector<PropertyTree*> pending{&value};
    while (!pending.empty() && !m_open.empty())
    {
        PropertyTree& tree = *pending.back();
        pending.pop_back();
        if (tree.isMap())
        {
            for (auto& [key, child] : tree.getMap())
            {
                pending.push_back(&child);
            }
        }
        else if (tree.isList())
        {
            PropertyTree::List& list = tree.getList();
            if (OpenList* const open = OpenOf(tree))
            {
                OpenList taken = std::move(*open);
                m_open.erase(list.data());
                list.clear();
                list.reserve(taken.order.Size());
                std::ranges::transform(taken.order.All(), std::back_inserter(list),
                                       [&taken](std::size_t element) { return std::move(taken.elements[element]); });
            }
            std::ranges::transform(list, std::back_inserter(pending), [](PropertyTree& element) { return &element; });
        }
    }
}

} // namespace Ombrel::Inspection
