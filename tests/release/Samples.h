#ifndef OMBREL_TESTS_RELEASE_SAMPLES_H
#define OMBREL_TESTS_RELEASE_SAMPLES_H

#include "PropertyTree/PropertyTree.h"

#include <string>
#include <vector>

namespace Release
{

/// A stored effect that shows one thing about its class.
struct Sample
{
    std::string name;
    Ombrel::PropertyTree tree;
};

/// Of a class, as a manifest describes it: nothing but its id, every value changed, each key alone, each name of each
/// enumeration, and the edges of each kind.
std::vector<Sample> SamplesOf(const Ombrel::PropertyTree& manifest, const Ombrel::PropertyTree& described);

/// What reading the tree gives: under "full" all values of the effect, under "empty" what `IsEmpty` of effect and record say,
/// and under "written" what is written of it. Or under "refused" why it is not read.
Ombrel::PropertyTree OutcomeOf(const Ombrel::PropertyTree& tree);

/// All keys of a class with their defaults, as a manifest says.
Ombrel::PropertyTree DefaultsOf(const Ombrel::PropertyTree& described);

/// The values of a full form that differ from the defaults, and the other way round.
Ombrel::PropertyTree DifferenceOf(const Ombrel::PropertyTree& full, const Ombrel::PropertyTree& byDefault);
Ombrel::PropertyTree FullOf(const Ombrel::PropertyTree& difference, Ombrel::PropertyTree byDefault);

/// A text that a map holds.
std::string TextIn(const Ombrel::PropertyTree& map, const char* key);

} // namespace Release

#endif
