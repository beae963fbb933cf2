#include "PropertyTreeJson/JsonOutput.h"

#include "PropertyTree/Characters.h"
#include "PropertyTreeJson/JsonText.h"
#include "PropertyTreeJson/MessageText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace Ombrel
{
namespace
{

// No number has more characters.
constexpr std::size_t MAX_NUMBER_SIZE = 32;

} // namespace

void JsonOutput::AddLine(std::size_t indent)
{
    constexpr std::string_view line = "\n                               ";
    if (indent < line.size())
    {
        RequireRoom(line.size());
        line.copy(m_next, line.size()); // of a fixed size, which is faster than exactly the spaces
        m_next += 1 + indent;
        return;
    }
    Add('\n');
    AddSpaces(indent);
}

void JsonOutput::AddSpaces(std::size_t count)
{
    while (count > Room())
    {
        count -= Room();
        m_next = std::fill_n(m_next, Room(), ' ');
        Flush();
    }
    m_next = std::fill_n(m_next, count, ' ');
}

void JsonOutput::Add(std::int64_t value)
{
    RequireRoom(MAX_NUMBER_SIZE);
    m_next = std::to_chars(m_next, m_next + MAX_NUMBER_SIZE, value).ptr;
}

void JsonOutput::Add(double value)
{
    RequireRoom(MAX_NUMBER_SIZE);
    if (AddIfShort(value))
    {
        return;
    }
    const char* const start = m_next;
    m_next = std::to_chars(m_next, m_next + MAX_NUMBER_SIZE, value).ptr;
    if (std::string_view(start, m_next).find_first_of(".e") == std::string_view::npos)
    {
        Add(".0");
    }
}

// Adds a float of at most six digits behind the point and five before, as `std::to_chars` would: no other number with so few
// digits reads back as this float, and an exponent would not make it shorter.
bool JsonOutput::AddIfShort(double value)
{
    constexpr std::uint64_t million = 1'000'000;
    const double size = std::fabs(value);
    if (!(size < 1e5 && (size >= 1e-3 || size == 0)))
    {
        return false;
    }
    const auto millionths = static_cast<std::uint64_t>(size * million + 0.5);
    if (static_cast<double>(millionths) / million != size)
    {
        return false;
    }
    if (std::signbit(value))
    {
        *m_next++ = '-';
    }
    m_next = std::to_chars(m_next, m_next + MAX_NUMBER_SIZE, millionths / million).ptr;
    *m_next++ = '.';
    std::uint64_t rest = millionths % million;
    do
    {
        rest *= 10;
        *m_next++ = static_cast<char>('0' + rest / million);
        rest %= million;
    } while (rest != 0);
    return true;
}

bool JsonOutput::AddQuoted(std::string_view text)
{
    RequireRoom(text.size() + 2);
    if (text.size() + 2 <= Room() && JsonText::CopyIfPlain(text, m_next + 1))
    {
        *m_next = '"';
        m_next[text.size() + 1] = '"';
        m_next += text.size() + 2;
        return true;
    }
    Add('"');
    const char* at = text.data();
    const char* const end = at + text.size();
    for (const char* run = at;;)
    {
        at = JsonText::PlainEnd(at, end);
        while (at != end && JsonText::IsBeyondAscii(*at)) // such characters rarely come alone
        {
            const std::size_t length = Utf8Length({at, end});
            if (length == 0)
            {
                return false;
            }
            at += length;
        }
        if (at != end && JsonText::IsPlain(*at))
        {
            continue;
        }
        Add({run, at});
        if (at == end)
        {
            Add('"');
            return true;
        }
        std::array<char, 6> space;
        Add(MessageText::EscapeOf(*at, space));
        run = ++at;
    }
}

void JsonOutput::RequireRoom(std::size_t size)
{
    if (Room() < size)
    {
        Flush();
    }
}

void JsonOutput::AddBeyondRoom(std::string_view bytes)
{
    Flush();
    if (bytes.size() > Room())
    {
        m_text += bytes;
    }
    else
    {
        m_next += bytes.copy(m_next, bytes.size());
    }
}

} // namespace Ombrel
