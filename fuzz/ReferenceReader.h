#ifndef OMBREL_FUZZ_REFERENCE_READER_H
#define OMBREL_FUZZ_REFERENCE_READER_H

#include "PropertyTreeJson/PropertyTreeJson.h"

#include <string_view>

namespace Fuzz
{

/// `ReadJson` on the parser of another library: slower, and written independently. Both must take the same texts for the same
/// trees and find the same place in all others. Only the reasons in the errors differ.
Ombrel::PropertyTree ReadByReference(std::string_view text, const Ombrel::JsonReadOptions& options);

} // namespace Fuzz

#endif
