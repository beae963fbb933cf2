#ifndef OMBREL_INSPECTION_TREE_STEPS_H
#define OMBREL_INSPECTION_TREE_STEPS_H

#include "Inspection/Path.h"
#include "PropertyTree/PropertyTree.h"

#include <optional>
#include <span>

namespace Ombrel::Inspection
{

struct Change;

using Steps = std::span<const PathStep>;

/// The value that a step leads to, or null. `parent` may be null.
const PropertyTree* ChildAt(const PropertyTree* parent, const PathStep& step);
PropertyTree* ChildAt(PropertyTree* parent, const PathStep& step);

/// The value that the steps lead to, or null.
const PropertyTree* Find(const PropertyTree& tree, Steps steps);
PropertyTree* Find(PropertyTree& tree, Steps steps);

/// Gives the value at the steps another one, or takes out its key. False if there is no place for it, since what is around it
/// is missing.
bool Put(PropertyTree& tree, Steps steps, const std::optional<PropertyTree>& value);

/// Makes a change of the value, or of the list around the element, at the steps. The same as above if there is no place for it.
/// @param element what is inserted
bool Execute(PropertyTree& tree, Steps steps, const Change& change, const std::optional<PropertyTree>& element);

} // namespace Ombrel::Inspection

#endif
