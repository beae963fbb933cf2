#ifndef OMBREL_FUZZ_CHANGES_COMPARISON_H
#define OMBREL_FUZZ_CHANGES_COMPARISON_H

#include "PropertyTree/PropertyTree.h"

namespace Fuzz
{

/// Ends the program unless the changes from one tree to the other make the other of the one, their inverse takes them back, and
/// as a JSON Patch they do the same.
void CompareChanges(const Ombrel::PropertyTree& before, const Ombrel::PropertyTree& after);

/// Ends the program unless a merge takes what one side alone has changed, and says the same of both sides.
void CompareMerge(const Ombrel::PropertyTree& base, const Ombrel::PropertyTree& ours, const Ombrel::PropertyTree& theirs);

} // namespace Fuzz

#endif
