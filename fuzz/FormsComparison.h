#ifndef OMBREL_FUZZ_FORMS_COMPARISON_H
#define OMBREL_FUZZ_FORMS_COMPARISON_H

#include "PropertyTree/PropertyTree.h"

namespace Fuzz
{

/// Ends the program unless the thin, frozen and normalised form of the tree are what they promise to be.
void CompareForms(const Ombrel::PropertyTree& tree);

} // namespace Fuzz

#endif
