#ifndef OMBREL_FUZZ_FUZZ_H
#define OMBREL_FUZZ_FUZZ_H

#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What each target is: it looks at one input, and ends the program if the library does not do with it what it promises.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace Fuzz
{

/// Ends the program with both texts unless `condition` holds.
void Require(bool condition, std::string_view what, std::string_view found = {});

/// Ends the program with both trees unless they are the same, where a NaN is the same as a NaN.
void RequireSame(const Ombrel::PropertyTree& expected, const Ombrel::PropertyTree& found, std::string_view what);

/// Whether two trees hold the same numbers by value: 5 is 5.0, and a NaN is a NaN.
bool AreSameByValue(const Ombrel::PropertyTree& a, const Ombrel::PropertyTree& b);

} // namespace Fuzz

#endif
