#ifndef OMBREL_PROPERTY_TREE_JSON_MESSAGE_TEXT_H
#define OMBREL_PROPERTY_TREE_JSON_MESSAGE_TEXT_H

#include "OmbrelCompiler.h"
#include "PropertyTree/Characters.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

// Paths and texts of trees in messages. Inline, since the command line uses it too and the library does not export it.
namespace Ombrel::MessageText
{

/// The path from the top of a tree to one of its values, as text: keys and list indices joined by "/". Within a key "~" is
/// written as "~0" and "/" as "~1".
class Path
{
public:
    void Add(std::string_view key)
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

    void Add(std::size_t index)
    {
        AddSeparator();
        m_text += std::to_string(index);
    }

    const std::string& Text() const noexcept { return m_text; }

private:
    void AddSeparator()
    {
        if (!m_isTop)
        {
            m_text += '/';
        }
        m_isTop = false;
    }

    std::string m_text;
    bool m_isTop = true; // an empty text does not tell, since a key may be empty
};

/// The index that a step of such a path is, if it is a decimal number without sign and leading zeros.
inline std::optional<std::size_t> IndexOf(std::string_view step)
{
    std::size_t index = 0;
    const auto [end, error] = std::from_chars(step.data(), step.data() + step.size(), index);
    if (error != std::errc() || end != step.data() + step.size() || (step.size() > 1 && step.front() == '0'))
    {
        return std::nullopt;
    }
    return index;
}

/// The escape of the code point `character`, which is below 256: a quote, a backslash or a control character. The text is in
/// `space`. An escape is rare, and would only make the loops larger that ask for it.
OMBREL_NOINLINE inline std::string_view EscapeOf(char character, std::array<char, 6>& space)
{
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view names = "\"\\bfnrt";
    if (const std::size_t index = named.find(character); index != std::string_view::npos)
    {
        space = {'\\', names[index]};
        return {space.data(), 2};
    }
    const std::array<char, 2> digits = HexDigits(static_cast<unsigned char>(character));
    space = {'\\', 'u', '0', '0', digits[0], digits[1]};
    return {space.data(), space.size()};
}

/// `text` with escapes for control characters and for bytes that are not UTF-8. Keys come from the input, which may be hostile:
/// no message may contain a command to a terminal or break the encoding of a log.
inline std::string Printable(std::string_view text)
{
    std::string result;
    std::array<char, 6> space;
    while (!text.empty())
    {
        const std::size_t length = Utf8Length(text);
        if (length == 0)
        {
            result += "\\x";
            result.append(HexDigits(static_cast<unsigned char>(text.front())).data(), 2);
        }
        else if (IsControl(text))
        {
            result += EscapeOf(text[length - 1], space); // the last byte is the code point, of either length
        }
        else
        {
            result += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

/// The same of a text of several lines, which stay.
inline std::string PrintableLines(std::string_view text)
{
    std::string result;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n'))
    {
        result += Printable(text.substr(0, end)) + '\n';
        text.remove_prefix(end + 1);
    }
    return result + Printable(text);
}

} // namespace Ombrel::MessageText

#endif