#ifndef OMBREL_FUZZ_STORED_COMPARISON_H
#define OMBREL_FUZZ_STORED_COMPARISON_H

#include "PropertyTree/PropertyTree.h"

namespace Fuzz
{

/// Holds a tolerant load of a stored effect, or of a list of them, to what it promises: what is read, and that saving gives the
/// same tree. Then changes each effect that can be read into the one at its place in `other`, and holds what is saved to what
/// the change was.
void CompareStored(const Ombrel::PropertyTree& tree, const Ombrel::PropertyTree& other);

} // namespace Fuzz

#endif
