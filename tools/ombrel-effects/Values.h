#ifndef OMBREL_EFFECTS_TOOL_VALUES_H
#define OMBREL_EFFECTS_TOOL_VALUES_H

#include "PropertyTree/PropertyTree.h"

#include <string>

namespace Ombrel::EffectsTool
{

/// One line of JSON for people. A float that is no finite number is "NaN", "Infinity" or "-Infinity".
std::string Shown(const PropertyTree& value);

/// As `Shown`, cut where it is too long for a message.
std::string ShownInBrief(const PropertyTree& value);

/// "an integer", "a list", ...
const char* KindOf(const PropertyTree& value);

bool IsString(const PropertyTree& value);

/// True if `stored` has the given value. An integer and a float are equal if their exact values are equal, and a NaN equals a
/// NaN. In a map only the given keys are compared.
bool IsStoredAs(const PropertyTree& given, const PropertyTree& stored);

} // namespace Ombrel::EffectsTool

#endif
