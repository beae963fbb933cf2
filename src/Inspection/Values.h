#ifndef OMBREL_INSPECTION_VALUES_H
#define OMBREL_INSPECTION_VALUES_H

#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Ombrel::Inspection
{

bool IsNumber(const PropertyTree& value);
bool IsText(const PropertyTree& value);

/// The stored form of what is left of an integer in a field of this kind.
std::int64_t CutTo(Proc::ValueKind kind, std::int64_t value);

/// What a number reads as where an integer stands; nothing for one that no integer of 64 bits holds.
std::optional<std::int64_t> IntegerOf(const PropertyTree& value);

/// What may stand where a value of this kind is read, for people: "an integer from 0 to 255".
std::string ExpectedOf(const Proc::ValueSchema& schema);

/// A value as messages show it: a text in quotation marks, cut if it is long; "a map" and "a list".
std::string Shown(const PropertyTree& value);
std::string Quoted(std::string_view text);

/// A text that two elements of a set share if they are the same.
std::string KeyOf(const PropertyTree& value);

/// Whether two trees hold the same: numbers by value, so that 5 is 5.0 and -0.0 is 0.0, and a NaN is a NaN.
bool AreSame(const PropertyTree& a, const PropertyTree& b);

/// The same for values that may be missing, which are null then.
bool AreSameOrMissing(const PropertyTree* a, const PropertyTree* b);

/// Whether the elements have no order: those of a set or a map of colours. `schema` may be null.
bool IsUnordered(const Proc::ValueSchema* schema);

/// The same for sets and maps of colours, whose elements have no order.
bool AreSameUnordered(const PropertyTree& a, const PropertyTree& b);

} // namespace Ombrel::Inspection

#endif
