#include "PropertyTreeJson/JsonScanner.h"

#include "PropertyTree/Characters.h"
#include "PropertyTreeJson/JsonFault.h"
#include "PropertyTreeJson/JsonText.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace Ombrel
{
namespace
{

constexpr bool IsHighSurrogate(unsigned code)
{
    return code >= 0xD800 && code <= 0xDBFF;
}

constexpr bool IsLowSurrogate(unsigned code)
{
    return code >= 0xDC00 && code <= 0xDFFF;
}

// The first byte that makes `text` no sequence of UTF-8, or its end if it is cut off.
std::size_t FirstIllFormed(std::string_view text)
{
    const Utf8Range range = Utf8RangeAfter(static_cast<unsigned char>(text.front()));
    std::size_t index = range.length == 0 ? 0 : 1;
    for (unsigned char lowest = range.lowestSecond, highest = range.highestSecond; index < std::min(range.length, text.size());
         ++index, lowest = 0x80, highest = 0xBF)
    {
        const auto byte = static_cast<unsigned char>(text[index]);
        if (byte < lowest || byte > highest)
        {
            break;
        }
    }
    return index;
}

} // namespace

void JsonScanner::SkipByteOrderMark()
{
    if (m_next == m_end || *m_next != BYTE_ORDER_MARK.front())
    {
        return;
    }
    for (const char byte : BYTE_ORDER_MARK)
    {
        if (m_next == m_end || *m_next != byte)
        {
            Fail("invalid BOM; must be 0xEF 0xBB 0xBF if given");
        }
        ++m_next;
    }
}

void JsonScanner::SkipWhiteSpace() noexcept
{
    constexpr std::string_view eightSpaces = "        ";
    while (m_next != m_end && (*m_next == ' ' || *m_next == '\n' || *m_next == '\r' || *m_next == '\t'))
    {
        ++m_next;
        while (m_end - m_next >= 8 && std::memcmp(m_next, eightSpaces.data(), 8) == 0) // the indentation of a line
        {
            m_next += 8;
        }
    }
}

void JsonScanner::ReadLiteral(std::string_view literal)
{
    for (const char byte : literal)
    {
        if (m_next == m_end || *m_next != byte)
        {
            Fail("invalid literal");
        }
        ++m_next;
    }
}

std::string_view JsonScanner::ReadString()
{
    const char* const start = ++m_next;
    for (;;)
    {
        m_next = JsonText::PlainEnd(m_next, m_end);
        if (m_next == m_end)
        {
            Fail("invalid string: missing closing quote");
        }
        if (*m_next == '"')
        {
            return {start, m_next++};
        }
        if (*m_next == '\\')
        {
            return ReadEscapedString(start);
        }
        SkipBeyondAscii();
    }
}

// Steps over characters beyond ASCII, of which there is at least one unless a control character is here, which is refused.
void JsonScanner::SkipBeyondAscii()
{
    if (!JsonText::IsBeyondAscii(*m_next))
    {
        constexpr std::string_view digits = "0123456789ABCDEF";
        const auto code = static_cast<unsigned char>(*m_next);
        const std::string name = {'U', '+', '0', '0', digits[code >> 4], digits[code & 0xF]};
        Fail("invalid string: control character " + name + " must be escaped");
    }
    do // such characters rarely come alone
    {
        const std::string_view rest(m_next, m_end);
        const std::size_t length = Utf8Length(rest);
        if (length == 0)
        {
            m_next += FirstIllFormed(rest);
            Fail("invalid string: ill-formed UTF-8 byte");
        }
        m_next += length;
    } while (m_next != m_end && JsonText::IsBeyondAscii(*m_next));
}

// The string that begins at `start` and has its first escape here.
std::string_view JsonScanner::ReadEscapedString(const char* start)
{
    if (!m_memory)
    {
        // No escape is shorter than what it stands for.
        m_memory = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(m_end - start));
        m_kept = m_memory.get();
    }
    const char* const result = m_kept;
    for (const char* run = start;;)
    {
        if (m_next == m_end)
        {
            Fail("invalid string: missing closing quote");
        }
        if (*m_next == '"')
        {
            Keep(run, m_next++);
            return {result, m_kept};
        }
        if (*m_next == '\\')
        {
            Keep(run, m_next++);
            ReadEscape();
            run = m_next;
        }
        else
        {
            SkipBeyondAscii();
        }
        m_next = JsonText::PlainEnd(m_next, m_end);
    }
}

// An escape, of which the backslash has been read.
void JsonScanner::ReadEscape()
{
    constexpr std::string_view names = "\"\\/bfnrt";
    constexpr std::string_view characters = "\"\\/\b\f\n\r\t";
    const std::size_t index = m_next == m_end ? std::string_view::npos : names.find(*m_next);
    if (index != std::string_view::npos)
    {
        *m_kept++ = characters[index];
        ++m_next;
    }
    else if (m_next != m_end && *m_next == 'u')
    {
        ++m_next;
        ReadUnicodeEscape();
    }
    else
    {
        Fail("invalid string: forbidden character after backslash");
    }
}

// An escape, of which "\u" has been read. One of a surrogate must have its other half behind it.
void JsonScanner::ReadUnicodeEscape()
{
    constexpr const char* noLowSurrogate = "invalid string: surrogate U+D800..U+DBFF must be followed by U+DC00..U+DFFF";
    unsigned code = ReadHexDigits();
    if (IsLowSurrogate(code))
    {
        --m_next;
        Fail("invalid string: surrogate U+DC00..U+DFFF must follow U+D800..U+DBFF");
    }
    if (IsHighSurrogate(code))
    {
        for (const char byte : std::string_view("\\u"))
        {
            if (m_next == m_end || *m_next != byte)
            {
                Fail(noLowSurrogate);
            }
            ++m_next;
        }
        const unsigned low = ReadHexDigits();
        if (!IsLowSurrogate(low))
        {
            --m_next;
            Fail(noLowSurrogate);
        }
        code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
    }
    KeepCodePoint(code);
}

unsigned JsonScanner::ReadHexDigits()
{
    unsigned value = 0;
    for (int i = 0; i < 4; ++i, ++m_next)
    {
        const char digit = m_next == m_end ? '\0' : *m_next;
        if (digit >= '0' && digit <= '9')
        {
            value = value * 16 + static_cast<unsigned>(digit - '0');
        }
        else if ((digit >= 'a' && digit <= 'f') || (digit >= 'A' && digit <= 'F'))
        {
            value = value * 16 + static_cast<unsigned>((digit | 0x20) - 'a' + 10);
        }
        else
        {
            Fail("invalid string: '\\u' must be followed by 4 hex digits");
        }
    }
    return value;
}

void JsonScanner::Keep(const char* begin, const char* end) noexcept
{
    m_kept = std::copy(begin, end, m_kept);
}

void JsonScanner::KeepCodePoint(unsigned codePoint) noexcept
{
    if (codePoint < 0x80)
    {
        *m_kept++ = static_cast<char>(codePoint);
        return;
    }
    const int continuations = codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
    const unsigned mark = 0xFF00U >> (continuations + 1) & 0xFF; // 110, 1110 or 11110 in the highest bits
    *m_kept++ = static_cast<char>(mark | codePoint >> (6 * continuations));
    for (int shift = 6 * (continuations - 1); shift >= 0; shift -= 6)
    {
        *m_kept++ = static_cast<char>(0x80 | (codePoint >> shift & 0x3F));
    }
}

JsonNumber JsonScanner::ReadNumber()
{
    JsonNumber number;
    const char* const start = m_next;
    m_next += *m_next == '-' ? 1 : 0;
    RequireDigit("invalid number; expected digit after '-'");
    if (*m_next == '0')
    {
        ++m_next; // no digit may follow
        number.digitCount = 1;
    }
    else
    {
        ReadDigits(number);
    }
    if (m_next != m_end && *m_next == '.')
    {
        ++m_next;
        RequireDigit("invalid number; expected digit after '.'");
        const std::size_t before = number.digitCount;
        ReadDigits(number);
        number.fractionDigits = number.digitCount - before;
        number.isFloat = true;
    }
    if (m_next != m_end && (*m_next == 'e' || *m_next == 'E'))
    {
        ++m_next;
        const bool hasSign = m_next != m_end && (*m_next == '+' || *m_next == '-');
        m_next += hasSign ? 1 : 0;
        RequireDigit(hasSign ? "invalid number; expected digit after exponent sign"
                             : "invalid number; expected '+', '-', or digit after exponent");
        while (IsAtDigit())
        {
            ++m_next;
        }
        number.isFloat = number.hasExponent = true;
    }
    number.spelling = {start, m_next};
    return number;
}

void JsonScanner::ReadDigits(JsonNumber& number) noexcept
{
    const char* const start = m_next;
    for (; IsAtDigit(); ++m_next)
    {
        number.digits = number.digits * 10 + static_cast<unsigned>(*m_next - '0');
    }
    number.digitCount += static_cast<std::size_t>(m_next - start);
}

void JsonScanner::Fail(const std::string& reason) const
{
    throw JsonFault{Offset(), reason};
}

} // namespace Ombrel
