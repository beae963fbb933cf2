#include "PropertyTreeJson/JsonNumber.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <iterator>
#include <locale.h>
#include <stdlib.h>
#include <string>
#include <system_error>

// Of floats. The standard library of g++ 12 rounds some of them twice in programs for 32-bit x86.
#if defined(__cpp_lib_to_chars) && !defined(__i386__)
#define OMBREL_HAS_EXACT_FROM_CHARS
#endif

namespace Ombrel
{
namespace
{

// Any so many digits fit the type.
constexpr std::size_t DIGITS_OF_INT64 = 18;
constexpr std::size_t DIGITS_OF_UINT64 = 19;

// The powers of ten that a float holds exactly.
constexpr double POWERS_OF_TEN[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Up to here a float holds every integer.
constexpr std::uint64_t MAX_EXACT = std::uint64_t{1} << 53;

// Whether a number that does not fit a float is too large rather than too small. `spelling` must not be zero.
[[maybe_unused]] bool IsLarge(std::string_view spelling)
{
    const std::size_t exponentAt = std::min(spelling.find_first_of("eE"), spelling.size());
    const std::string_view mantissa = spelling.substr(0, exponentAt);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto digit = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    if (exponentAt == spelling.size())
    {
        return digit < point;
    }
    std::string_view exponent = spelling.substr(exponentAt + 1);
    const bool isNegative = exponent.front() == '-';
    exponent.remove_prefix(std::min(exponent.find_first_of("0123456789"), exponent.size()));
    std::int64_t size = 0;
    if (std::from_chars(exponent.data(), exponent.data() + exponent.size(), size).ec != std::errc())
    {
        return !isNegative; // no number of digits makes up for an exponent beyond 64 bits
    }
    return isNegative ? point - digit > size : point - digit > -size;
}

// The float of any spelling.
std::optional<double> Parse(std::string_view spelling)
{
#ifdef OMBREL_HAS_EXACT_FROM_CHARS
    double value = 0.0;
    const auto result = std::from_chars(spelling.data(), spelling.data() + spelling.size(), value);
    if (result.ec == std::errc::result_out_of_range)
    {
        if (IsLarge(spelling))
        {
            return std::nullopt;
        }
        return spelling.starts_with('-') ? -0.0 : 0.0;
    }
    return value;
#else
    static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
    const double value = strtod_l(std::string(spelling).c_str(), nullptr, classic);
    return std::isinf(value) ? std::nullopt : std::optional(value);
#endif
}

} // namespace

std::optional<std::int64_t> JsonNumber::ToInteger() const noexcept
{
    if (digitCount <= DIGITS_OF_INT64)
    {
        const auto value = static_cast<std::int64_t>(digits);
        return spelling.front() == '-' ? -value : value;
    }
    std::int64_t value = 0;
    const auto result = std::from_chars(spelling.data(), spelling.data() + spelling.size(), value);
    return result.ec == std::errc() ? std::optional(value) : std::nullopt;
}

std::optional<double> JsonNumber::ToFloat() const
{
    // The quotient of two exact numbers is the nearest float, where the machine divides without excess precision.
    if (FLT_EVAL_METHOD == 0 && !hasExponent && digitCount <= DIGITS_OF_UINT64 && digits <= MAX_EXACT &&
        fractionDigits < std::size(POWERS_OF_TEN))
    {
        const double value = static_cast<double>(digits) / POWERS_OF_TEN[fractionDigits];
        return spelling.front() == '-' ? -value : value;
    }
    return Parse(spelling);
}

} // namespace Ombrel
