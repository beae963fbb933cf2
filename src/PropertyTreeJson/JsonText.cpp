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

// Copies one word from `at` to `to`, and returns it.
template <class Word> Word Copy(const char* at, char* to) noexcept
{
    const Word word = Load<Word>(at);
    std::memcpy(to, &word, sizeof word);
    return word;
}

} // namespace

bool CopyIfPlain(std::string_view text, char* to) noexcept
{
    const char* const at = text.data();
    const std::size_t size = text.size();
    if (size >= 8)
    {
        for (std::size_t i = 0; i + 8 <= size; i += 8)
        {
            if (MarksOf(Copy<std::uint64_t>(at + i, to + i)) != 0)
            {
                return false;
            }
        }
        return MarksOf(Copy<std::uint64_t>(at + size - 8, to + size - 8)) == 0; // the rest, with what has been copied before it
    }
    if (size >= 4)
    {
        const std::uint64_t first = Copy<std::uint32_t>(at, to);
        const std::uint64_t last = Copy<std::uint32_t>(at + size - 4, to + size - 4);
        return MarksOf(first | last << 32) == 0;
    }
    std::copy_n(at, size, to);
    return std::all_of(at, at + size, &IsPlain);
}

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
