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

bool HasPlaces(const Change& change, std::size_t index, std::size_t size)
{
    return change.kind == ChangeKind::Insert ? index <= size
                                             : index < size && (change.kind != ChangeKind::Move || change.target < size);
}

} // namespace Ombrel::Inspection
