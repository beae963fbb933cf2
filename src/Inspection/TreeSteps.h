#ifndef OMBREL_INSPECTION_TREE_STEPS_H
#define OMBREL_INSPECTION_TREE_STEPS_H

#include "Inspection/Path.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
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

/// A value that may be missing, and the other way round.
inline std::optional<PropertyTree> CopyOf(const PropertyTree* value)
{
    return value ? std::optional(*value) : std::nullopt;
}

inline const PropertyTree* PointerTo(const std::optional<PropertyTree>& value)
{
    return value ? &*value : nullptr;
}

/// Whether a list of so many elements has the places of a change of one of them.
bool HasPlaces(const Change& change, std::size_t index, std::size_t size);

} // namespace Ombrel::Inspection

#endif
