#ifndef OMBREL_INSPECTION_SCHEMA_PARTS_H
#define OMBREL_INSPECTION_SCHEMA_PARTS_H

#include "Proc/Reflection/EnumNameTable.h"
#include "PropertyTree/PropertyTree.h"

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace Ombrel::Inspection
{

/// A schema that refers to a definition of the same document.
PropertyTree RefTo(std::string_view name);

PropertyTree OfType(const char* type);
PropertyTree IntegerFrom(std::int64_t least, std::int64_t most);

template <class Integer> PropertyTree IntegerLike()
{
    return IntegerFrom(std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max());
}

PropertyTree Colour();

// Where the JSON reader takes three texts for floats. The same texts have a backslash before them.
PropertyTree FloatOrText();
PropertyTree TextThatIsNoFloat();

/// A name that is written again as it is read.
PropertyTree NameIn(const Proc::EnumNameTable& table);

/// A list of texts.
PropertyTree Names(std::span<const std::string> names);

/// Whether every number in the value is finite.
bool IsFinite(const PropertyTree& tree);

} // namespace Ombrel::Inspection

#endif
