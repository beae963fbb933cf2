#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H

#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

/// Shared by the reader and the writer. Not for callers.
namespace Ombrel::JsonText
{

/// Whether a string holds `byte` as it is and on its own: an ASCII character but a quote, a backslash or a control character.
constexpr bool IsPlain(char byte) noexcept
{
    const auto code = static_cast<unsigned char>(byte);
    return code >= 0x20 && code < 0x80 && byte != '"' && byte != '\\';
}

/// The first byte from `at` that is not plain, or `end`. Looks at eight bytes at a time.
inline const char* PlainEnd(const char* at, const char* end) noexcept
{
    constexpr std::uint64_t each = 0x0101010101010101;
    constexpr bool isLowestFirst = std::endian::native == std::endian::little;
    for (; end - at >= 8; at += 8)
    {
        std::uint64_t bytes;
        std::memcpy(&bytes, at, sizeof bytes);
        // Sets the highest bit of each byte that is beyond ASCII, below 0x20, a quote or a backslash. A subtraction borrows
        // from the byte above only where it finds one, so the lowest bit that is set is right.
        const std::uint64_t marks =
            (bytes | (bytes - each * 0x20) | ((bytes ^ (each * '"')) - each) | ((bytes ^ (each * '\\')) - each)) &
            (each * 0x80);
        if (marks != 0)
        {
            at += isLowestFirst ? std::countr_zero(marks) / 8 : 0;
            break;
        }
    }
    while (at != end && IsPlain(*at))
    {
        ++at;
    }
    return at;
}

/// The name of a float that is NaN or infinite.
std::string_view NonFiniteText(double value) noexcept;

/// The float that `text` is the name of, if it is one.
std::optional<double> NonFiniteValue(std::string_view text) noexcept;

/// True if `text` is such a name behind zero or more backslashes.
bool NeedsGuard(std::string_view text) noexcept;

} // namespace Ombrel::JsonText

#endif
