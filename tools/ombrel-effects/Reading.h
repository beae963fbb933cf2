#ifndef OMBREL_EFFECTS_TOOL_READING_H
#define OMBREL_EFFECTS_TOOL_READING_H

#include "Inspection/Finding.h"
#include "PropertyTree/PropertyTree.h"

#include <span>

namespace Ombrel::EffectsTool
{

/// Whether no finding is an error. An effect or class that is not known counts only where it is asked for.
bool IsReadable(std::span<const Inspection::Finding> findings, bool isUnknownAnError);

/// Whether an error says no more than that the effect is not known here.
bool IsOfUnknownEffect(const Inspection::Finding& finding);

/// A stored effect or a list of them without what no read takes: null stands in a list for an effect that is refused, so that
/// the paths of the others hold.
/// @param findings what `Check` says of it
PropertyTree WithoutErrors(const PropertyTree& tree, std::span<const Inspection::Finding> findings);

/// What is read of a stored effect or a list of them, with every key at every depth, without what no read takes.
PropertyTree FullForm(const PropertyTree& tree, std::span<const Inspection::Finding> findings);
PropertyTree FullForm(const PropertyTree& tree);

} // namespace Ombrel::EffectsTool

#endif
