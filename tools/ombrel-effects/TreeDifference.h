#ifndef OMBREL_EFFECTS_TOOL_TREE_DIFFERENCE_H
#define OMBREL_EFFECTS_TOOL_TREE_DIFFERENCE_H

#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <optional>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// A value that two trees do not share.
struct Difference
{
    Path path;
    std::optional<PropertyTree> before; // nothing where there is none
    std::optional<PropertyTree> after;
};

/// Numbers are compared by value, so that 5 is 5.0, and a NaN is a NaN. Elements of lists are compared by their index.
std::vector<Difference> DifferencesOf(const PropertyTree& before, const PropertyTree& after);

/// "5 becomes 7", for messages.
std::string TextOf(const Difference& difference);

} // namespace Ombrel::EffectsTool

#endif
