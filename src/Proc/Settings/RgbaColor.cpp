#include "Proc/Settings/RgbaColor.h"

#include "PropertyTree/Characters.h"

#include <charconv>
#include <stdexcept>
#include <system_error>

namespace Ombrel::Proc
{
namespace
{

bool IsHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool HasHexPrefix(std::string_view text)
{
    return text.starts_with("0x") || text.starts_with("0X");
}

std::uint8_t ByteAt(std::uint32_t number, int shift)
{
    return static_cast<std::uint8_t>(number >> shift);
}

} // namespace

std::string ToText(const RgbaColor& color)
{
    std::string text;
    for (const std::uint8_t byte : {color.red, color.green, color.blue, color.alpha})
    {
        text.append(HexDigits(byte).data(), 2);
    }
    return text;
}

RgbaColor ColorFromText(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
    text.remove_prefix(start == std::string_view::npos ? text.size() : start);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
    {
        text.remove_prefix(1);
    }
    // Without a digit behind it, the prefix is a plain zero with an "x" that is ignored.
    if (HasHexPrefix(text) && text.size() > 2 && IsHexDigit(text[2]))
    {
        text.remove_prefix(2);
    }

    std::uint32_t number = 0;
    const std::errc error = std::from_chars(text.data(), text.data() + text.size(), number, 16).ec;
    if (error == std::errc::invalid_argument)
    {
        throw std::invalid_argument("invalid stoul argument");
    }
    if (error == std::errc::result_out_of_range)
    {
        throw std::out_of_range("stoul argument out of range");
    }
    if (isNegative)
    {
        number = 0 - number;
    }
    return {ByteAt(number, 24), ByteAt(number, 16), ByteAt(number, 8), ByteAt(number, 0)};
}

} // namespace Ombrel::Proc
