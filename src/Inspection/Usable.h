#ifndef OMBREL_INSPECTION_USABLE_H
#define OMBREL_INSPECTION_USABLE_H

#include "Inspection/Findings.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <unordered_map>
#include <vector>

namespace Ombrel::Inspection
{

struct Copy
{
    PropertyTree* value = nullptr;
    std::vector<PathStep> steps; // from the effect to the original
};
using Copies = std::unordered_map<const PropertyTree*, Copy>; // by the originals

/// Whether no read takes the element of a list. An element of a colour map counts as a whole.
bool IsUnusable(const PropertyTree& element, const Proc::ValueSchema& list, Findings& findings);

/// Copies what a read takes, with null for each effect.
/// @param to null
/// @param copies where it is given, names that have no other form are left out too, and it gets an entry for each value that is
///        copied
void CopyUsable(const PropertyTree& from, PropertyTree& to, const Proc::ValueSchema& schema, const Place& place,
                Findings& findings, Copies* copies);

} // namespace Ombrel::Inspection

#endif
