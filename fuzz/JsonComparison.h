#ifndef OMBREL_FUZZ_JSON_COMPARISON_H
#define OMBREL_FUZZ_JSON_COMPARISON_H

#include "PropertyTreeJson/PropertyTreeJson.h"

#include <string_view>

namespace Fuzz
{

/// Ends the program unless `ReadJson` and the reference make the same of `text`: trees that are the same to the bit, or an
/// error at the same line, column and path. True if there is a tree.
bool CompareReaders(std::string_view text, const Ombrel::JsonReadOptions& options);

} // namespace Fuzz

#endif
