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

struct Utf8Range
{
    std::size_t length;
    unsigned char lowestSecond;
    unsigned char highestSecond;
};

// The length of the sequence that a lead byte begins, and the range of its second byte. That range is narrower where the full
// one would admit overlong forms, surrogates or code points above U+10FFFF.
Utf8Range RangeAfter(unsigned char lead) noexcept
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

} // namespace

void Path::Add(std::string_view key)
{
    AddSeparator();
    for (const char character : key)
    {
        switch (character)
        {
        case '~':
            m_text += "~0";
            break;
        case '/':
            m_text += "~1";
            break;
        default:
            m_text += character;
        }
    }
}

void Path::Add(std::size_t index)
{
    AddSeparator();
    m_text += std::to_string(index);
}

void Path::AddSeparator()
{
    if (!m_isTop)
    {
        m_text += '/';
    }
    m_isTop = false;
}

std::size_t Utf8Length(std::string_view text) noexcept
{
    const auto byteAt = [text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    if (byteAt(0) < 0x80)
    {
        return 1;
    }
    const Utf8Range range = RangeAfter(byteAt(0));
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

void AppendEscape(std::string& out, char character)
{
    constexpr std::string_view hex = "0123456789abcdef";
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view names = "\"\\bfnrt";
    out += '\\';
    if (const std::size_t index = named.find(character); index != std::string_view::npos)
    {
        out += names[index];
        return;
    }
    const auto byte = static_cast<unsigned char>(character);
    out += "u00";
    out += hex[byte >> 4];
    out += hex[byte & 0xF];
}

bool AppendQuoted(std::string& out, std::string_view text)
{
    out += '"';
    std::size_t copied = 0;
    for (std::size_t i = 0; i < text.size();)
    {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte >= 0x20 && byte < 0x80 && byte != '"' && byte != '\\')
        {
            ++i;
            continue;
        }
        if (byte >= 0x80)
        {
            const std::size_t length = Utf8Length(text.substr(i));
            if (length == 0)
            {
                return false;
            }
            i += length;
            continue;
        }
        out += text.substr(copied, i - copied);
        AppendEscape(out, text[i]);
        copied = ++i;
    }
    out += text.substr(copied);
    out += '"';
    return true;
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
