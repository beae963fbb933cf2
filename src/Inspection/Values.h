#ifndef OMBREL_INSPECTION_VALUES_H
#define OMBREL_INSPECTION_VALUES_H

#include "PropertyTree/PropertyTree.h"

#include <string>
#include <string_view>

namespace Ombrel::Inspection
{

/// A value as messages show it: a text in quotation marks, cut if it is long; "a map" and "a list".
std::string Shown(const PropertyTree& value);
std::string Quoted(std::string_view text);

/// A text that two elements of a set share if they are the same.
std::string KeyOf(const PropertyTree& value);

/// Whether two trees hold the same: numbers by value, so that 5 is 5.0 and -0.0 is 0.0, and a NaN is a NaN.
bool AreSame(const PropertyTree& a, const PropertyTree& b);

} // namespace Ombrel::Inspection

#endif
