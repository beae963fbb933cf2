#ifndef OMBREL_PROPERTY_TREE_CHARACTERS_H
#define OMBREL_PROPERTY_TREE_CHARACTERS_H

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

// The characters of UTF-8 texts. Inline, since other libraries of this project use them and none exports them.
namespace Ombrel
{

/// The byte as two lowercase hexadecimal digits.
constexpr std::array<char, 2> HexDigits(unsigned char byte) noexcept
{
    constexpr char digits[] = "0123456789abcdef";
    return {digits[byte >> 4], digits[byte & 0xF]};
}

struct Utf8Range
{
    std::size_t length;
    unsigned char lowestSecond;
    unsigned char highestSecond;
};

/// The length of the sequence that a lead byte begins, and the range of its second byte. That range is narrower where the full
/// one would admit overlong forms, surrogates or code points above U+10FFFF.
constexpr Utf8Range Utf8RangeAfter(unsigned char lead) noexcept
{
    if (lead < 0xC2 || lead > 0xF4)
    {
        return {0, 0, 0};
    }
    switch (lead)
    {
    case 0xE0:
        return {3, 0xA0, 0xBF};
    case 0xED:
        return {3, 0x80, 0x9F};
    case 0xF0:
        return {4, 0x90, 0xBF};
    case 0xF4:
        return {4, 0x80, 0x8F};
    default:
        return {lead < 0xE0 ? 2U : lead < 0xF0 ? 3U : 4U, 0x80, 0xBF};
    }
}

/// The length of the well-formed UTF-8 sequence at the start of `text`, or 0. `text` must not be empty.
constexpr std::size_t Utf8Length(std::string_view text) noexcept
{
    const auto byteAt = [text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    if (byteAt(0) < 0x80)
    {
        return 1;
    }
    const Utf8Range range = Utf8RangeAfter(byteAt(0));
    if (range.length == 0 || text.size() < range.length || byteAt(1) < range.lowestSecond || byteAt(1) > range.highestSecond)
    {
        return 0;
    }
    for (std::size_t i = 2; i < range.length; ++i)
    {
        if (byteAt(i) < 0x80 || byteAt(i) > 0xBF)
        {
            return 0;
        }
    }
    return range.length;
}

/// Whether `text` begins with U+0000 to U+001F or U+007F to U+009F. A terminal may take U+009B for the start of a command, like
/// ESC and "[". `text` must begin with a well-formed sequence.
constexpr bool IsControl(std::string_view text) noexcept
{
    const auto first = static_cast<unsigned char>(text.front());
    return first < 0x20 || first == 0x7F || (first == 0xC2 && static_cast<unsigned char>(text[1]) < 0xA0);
}

/// A text for a message, cut behind a whole UTF-8 sequence if it is long.
inline std::string CutText(std::string text)
{
    constexpr std::size_t limit = 200;
    if (text.size() > limit)
    {
        std::size_t end = limit;
        while ((static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        {
            --end;
        }
        text.replace(end, std::string::npos, "...");
    }
    return text;
}

} // namespace Ombrel

#endif
