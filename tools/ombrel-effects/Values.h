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

/// True if `stored` is what was given. Numbers compare by their exact value, whether integer or float, and a NaN is a NaN. A
/// map that was given says nothing about the keys that it leaves out.
bool IsStoredAs(const PropertyTree& given, const PropertyTree& stored);

} // namespace Ombrel::EffectsTool

#endif
