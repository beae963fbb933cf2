#ifndef STUDIO_EXPECT_H
#define STUDIO_EXPECT_H

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace Studio
{

/// A check that needs nothing but the standard library, so that a consumer depends on the tested package alone.
template <class Actual, class Expected> void Expect(std::string_view what, const Actual& actual, const Expected& expected)
{
    if (!(actual == expected))
    {
        std::cerr << what << ": expected " << expected << ", found " << actual << "\n";
        std::exit(EXIT_FAILURE);
    }
}

} // namespace Studio

#endif
