#ifndef OMBREL_INSPECTION_TREE_STEPS_H
#define OMBREL_INSPECTION_TREE_STEPS_H

#include "Inspection/Path.h"
#include "PropertyTree/PropertyTree.h"

#include <algorithm>
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
PropertyTree* Find(PropertyTree& tree, Steps steps);

/// A value that may be missing, and the other way round.
inline std::optional<PropertyTree> CopyOf(const PropertyTree* value)
{
    return value ? std::optional(*value) : std::nullopt;
}

inline const PropertyTree* PointerTo(const std::optional<PropertyTree>& value)
{
    return value ? &*value : nullptr;
}

/// Gives an element of a list another index, which is counted without it.
template <class List> void MoveElement(List& list, std::size_t from, std::size_t to)
{
    const auto at = [&list](std::size_t index) { return list.begin() + static_cast<std::ptrdiff_t>(index); };
    if (from < to)
    {
        std::rotate(at(from), at(from + 1), at(to + 1));
    }
    else
    {
        std::rotate(at(to), at(from), at(from + 1));
    }
}

/// Whether a list of so many elements has the places of a change of one of them.
bool HasPlaces(const Change& change, std::size_t index, std::size_t size);

/// Gives the value at the steps another one, or takes out its key. False if there is no place for it, since what is around it
/// is missing.
bool Put(PropertyTree& tree, Steps steps, const std::optional<PropertyTree>& value);

/// Makes a change of the value, or of the list around the element, at the steps. The same as above if there is no place for it.
/// @param element what is inserted
bool Execute(PropertyTree& tree, Steps steps, const Change& change, const std::optional<PropertyTree>& element);

} // namespace Ombrel::Inspection

#endif
