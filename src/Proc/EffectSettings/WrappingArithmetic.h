#ifndef OMBREL_PROC_EFFECT_SETTINGS_WRAPPING_ARITHMETIC_H
#define OMBREL_PROC_EFFECT_SETTINGS_WRAPPING_ARITHMETIC_H

#include <cstdint>

namespace Ombrel::PhotoCore
{

// 32-bit arithmetic that wraps, where the signed one would be undefined.

constexpr std::int32_t WrappingSum(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

constexpr std::int32_t WrappingDifference(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

} // namespace Ombrel::PhotoCore

#endif
