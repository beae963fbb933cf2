#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_TEXT_H

#include <bit>
#include <cstddef>
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

constexpr bool IsBeyondAscii(char byte) noexcept
{
    return static_cast<unsigned char>(byte) >= 0x80;
}

/// Of eight bytes, the highest bit of each that is not plain. Where one is found, the bits of the more significant bytes may be
/// set too; the others are right.
constexpr std::uint64_t MarksOf(std::uint64_t bytes) noexcept
{
    // A subtraction borrows from the next byte only where it finds something.
    constexpr std::uint64_t each = 0x0101010101010101;
    return (bytes | (bytes - each * 0x20) | ((bytes ^ (each * '"')) - each) | ((bytes ^ (each * '\\')) - each)) & (each * 0x80);
}

/// The next bytes of a text as a number.
template <class Word> Word Load(const char* at) noexcept
{
    Word word;
    std::memcpy(&word, at, sizeof word);
    return word;
}

/// The first byte from `at` that is not plain, or `end`.
inline const char* PlainEnd(const char* at, const char* end) noexcept
{
    for (; end - at >= 8; at += 8)
    {
        if (const std::uint64_t marks = MarksOf(Load<std::uint64_t>(at)); marks != 0)
        {
            at += std::endian::native == std::endian::little ? std::countr_zero(marks) / 8 : 0;
            break;
        }
    }
    while (at != end && IsPlain(*at))
    {
        ++at;
    }
    return at;
}

/// Whether all bytes of `text` are plain. Copies them to `to` if so, and may otherwise have copied some.
bool CopyIfPlain(std::string_view text, char* to) noexcept;

/// The name of a float that is NaN or infinite.
std::string_view NonFiniteText(double value) noexcept;

/// The float that `text` is the name of, if it is one.
std::optional<double> NonFiniteValue(std::string_view text) noexcept;

/// True if `text` is such a name behind zero or more backslashes.
bool NeedsGuard(std::string_view text) noexcept;

} // namespace Ombrel::JsonText

#endif
