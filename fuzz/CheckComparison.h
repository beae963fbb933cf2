#ifndef OMBREL_FUZZ_CHECK_COMPARISON_H
#define OMBREL_FUZZ_CHECK_COMPARISON_H

#include "PropertyTree/PropertyTree.h"

namespace Fuzz
{

/// Ends the program unless what `Check` says of the tree is what reading and writing it do.
void CompareCheck(const Ombrel::PropertyTree& tree);

} // namespace Fuzz

#endif
