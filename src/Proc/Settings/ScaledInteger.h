#ifndef OMBREL_PROC_SETTINGS_SCALED_INTEGER_H
#define OMBREL_PROC_SETTINGS_SCALED_INTEGER_H

#include <cmath>
#include <concepts>
#include <limits>

namespace Ombrel::Proc
{

// The product in 32-bit floating point, cut towards zero. What does not fit becomes the nearest limit of the type, a NaN 0;
// numbers beyond 24 bits are rounded even by a factor of 1.
template <std::integral Integer> Integer ScaledInteger(Integer value, float factor)
{
    using Limits = std::numeric_limits<Integer>;
    // The largest 32-bit number rounds up as a float, to the first one that does not fit, so that the tests must include it.
    constexpr float most = static_cast<float>(Limits::max());
    constexpr float least = static_cast<float>(Limits::min());

    const float product = static_cast<float>(value) * factor;
    if (std::isnan(product))
    {
        return 0;
    }
    if (product >= most)
    {
        return Limits::max();
    }
    return product <= least ? Limits::min() : static_cast<Integer>(product);
}

} // namespace Ombrel::Proc

#endif
