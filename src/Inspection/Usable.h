#ifndef OMBREL_INSPECTION_USABLE_H
#define OMBREL_INSPECTION_USABLE_H

#include "Inspection/Findings.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <unordered_map>

namespace Ombrel::Inspection
{

using Copies = std::unordered_map<const PropertyTree*, PropertyTree*>; // by the originals

/// Whether no read takes the element of a list. An element of a colour map counts as a whole.
bool IsUnusable(const PropertyTree& element, const Proc::ValueSchema& list, Findings& findings);

/// Copies what a read takes, with null for each effect.
/// @param to null
/// @param copies gets an entry for each value that is copied, unless it is null
void CopyUsable(const PropertyTree& from, PropertyTree& to, const Proc::ValueSchema& schema, Findings& findings,
                Copies* copies);

} // namespace Ombrel::Inspection

#endif
