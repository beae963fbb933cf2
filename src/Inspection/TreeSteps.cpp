#include "Inspection/TreeSteps.h"

#include "Inspection/Changes.h"

#include <cstddef>

namespace Ombrel::Inspection
{
const PropertyTree* ChildAt(const PropertyTree* parent, const PathStep& step)
{
    if (const std::size_t* index = std::get_if<std::size_t>(&step))
    {
        return parent && parent->isList() && *index < parent->getList().size() ? &parent->getList()[*index] : nullptr;
    }
    if (!parent || !parent->isMap())
    {
        return nullptr;
    }
    const auto found = parent->getMap().find(std::get<std::string>(step));
    return found == parent->getMap().end() ? nullptr : &found->second;
}

PropertyTree* ChildAt(PropertyTree* parent, const PathStep& step)
{
    return const_cast<PropertyTree*>(ChildAt(static_cast<const PropertyTree*>(parent), step));
}

const PropertyTree* Find(const PropertyTree& tree, Steps steps)
{
    const PropertyTree* value = &tree;
    for (const PathStep& step : steps)
    {
        value = ChildAt(value, step);
    }
    return value;
}

PropertyTree* Find(PropertyTree& tree, Steps steps)
{
    return const_cast<PropertyTree*>(Find(static_cast<const PropertyTree&>(tree), steps));
}

bool HasPlaces(const Change& change, std::size_t index, std::size_t size)
{
    return change.kind == ChangeKind::Insert ? index <= size
                                             : index < size && (change.kind != ChangeKind::Move || change.target < size);
}

bool Put(PropertyTree& tree, Steps steps, const std::optional<PropertyTree>& value)
{
    if (PropertyTree* found = Find(tree, steps); found && value)
    {
        *found = *value;
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
    else
    {
        around->getMap().erase(key);
    }
    return true;
}

bool Execute(PropertyTree& tree, Steps steps, const Change& change, const std::optional<PropertyTree>& element)
{
    if (change.kind == ChangeKind::Value)
    {
        return Put(tree, steps, element);
    }
    PropertyTree* around = steps.empty() ? nullptr : Find(tree, steps.first(steps.size() - 1));
    const std::size_t* index = steps.empty() ? nullptr : std::get_if<std::size_t>(&steps.back());
    if (!around || !around->isList() || !index)
    {
        return false;
    }
    PropertyTree::List& list = around->getList();
    if (!HasPlaces(change, *index, list.size()) || (change.kind == ChangeKind::Insert && !element))
    {
        return false;
    }
    const auto at = list.begin() + static_cast<std::ptrdiff_t>(*index);
    if (change.kind == ChangeKind::Insert)
    {
        list.insert(at, *element);
    }
    else if (change.kind == ChangeKind::Remove)
    {
        list.erase(at);
    }
    else
    {
        MoveElement(list, *index, change.target);
    }
    return true;
}

} // namespace Ombrel::Inspection
