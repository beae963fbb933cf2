#ifndef OMBREL_EFFECTS_TOOL_READING_H
#define OMBREL_EFFECTS_TOOL_READING_H

#include "Inspection/Finding.h"
#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <span>

namespace Ombrel::EffectsTool
{

/// Whether no finding is an error. An effect or class that is not known counts only where it is asked for.
bool IsReadable(std::span<const Inspection::Finding> findings, bool isUnknownAnError);

/// Whether an error says no more than that the effect is not known here.
bool IsOfUnknownEffect(const Inspection::Finding& finding);

/// Whether the value at `place` is missing from what is read because of an error.
bool IsAround(const Inspection::Finding& error, PathView place);

/// A stored effect or a list of them without what no read takes: null stands in a list for an effect that is refused, so that
/// the paths of the others hold.
/// @param findings what `Check` says of it
PropertyTree WithoutErrors(const PropertyTree& tree, std::span<const Inspection::Finding> findings);

/// What a read and a write make of a stored effect or a list of them, without what no read takes.
PropertyTree WrittenForm(const PropertyTree& tree, std::span<const Inspection::Finding> findings);

/// The same with every key at every depth.
PropertyTree FullForm(const PropertyTree& tree, std::span<const Inspection::Finding> findings);
PropertyTree FullForm(const PropertyTree& tree);

} // namespace Ombrel::EffectsTool

#endif
