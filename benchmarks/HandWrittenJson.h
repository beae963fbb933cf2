#ifndef OMBREL_BENCHMARKS_HAND_WRITTEN_JSON_H
#define OMBREL_BENCHMARKS_HAND_WRITTEN_JSON_H

#include "PropertyTree/PropertyTree.h"

#include <string>
#include <string_view>

namespace Ombrel::Benchmarks
{

// The shortest way between tree and JSON text: recursive, and without the checks of UTF-8, depth and place of a fault.

/// @throws std::invalid_argument for a float that is no finite number
std::string HandWriteJson(const PropertyTree& tree);

/// @throws std::invalid_argument for whatever cannot be read
PropertyTree HandReadJson(std::string_view text);

} // namespace Ombrel::Benchmarks

#endif
