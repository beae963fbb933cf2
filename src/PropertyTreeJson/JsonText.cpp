#include "PropertyTreeJson/JsonText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Ombrel::JsonText
{
namespace
{

constexpr std::string_view NOT_A_NUMBER = "NaN";
constexpr std::string_view INFINITE = "Infinity";
constexpr std::string_view MINUS_INFINITE = "-Infinity";

} // namespace

std::string_view NonFiniteText(double value) noexcept
{
    if (std::isnan(value))
    {
        return NOT_A_NUMBER;
    }
    return value < 0 ? MINUS_INFINITE : INFINITE;
}

std::optional<double> NonFiniteValue(std::string_view text) noexcept
{
    using Limits = std::numeric_limits<double>;
    if (text == NOT_A_NUMBER)
    {
        return Limits::quiet_NaN();
    }
    if (text == INFINITE)
    {
        return Limits::infinity();
    }
    if (text == MINUS_INFINITE)
    {
        return -Limits::infinity();
    }
    return std::nullopt;
}

bool NeedsGuard(std::string_view text) noexcept
{
    text.remove_prefix(std::min(text.find_first_not_of('\\'), text.size()));
    return NonFiniteValue(text).has_value();
}

} // namespace Ombrel::JsonText
