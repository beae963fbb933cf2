#include "PropertyTreeJson/JsonText.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

namespace Ombrel
{
namespace
{

// U+0000 to U+001F and U+007F to U+009F. A terminal may take U+009B for the start of a command, like ESC and "[".
bool IsControl(std::string_view character)
{
    const auto first = static_cast<unsigned char>(character.front());
    return character.size() == 1 ? first < 0x20 || first == 0x7F
                                 : first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

// Keys come from the input, which may be hostile: no message may contain a command to a terminal or break the encoding of a
// log.
std::string Printable(std::string_view text)
{
    constexpr std::string_view hex = "0123456789abcdef";
    std::string result;
    while (!text.empty())
    {
        const std::size_t length = JsonText::Utf8Length(text);
        const auto byte = static_cast<unsigned char>(text.front());
        if (length == 0)
        {
            result += "\\x";
            result += hex[byte >> 4];
            result += hex[byte & 0xF];
        }
        else if (IsControl(text.substr(0, length)))
        {
            JsonText::AppendEscape(result, text[length - 1]); // the last byte is the code point, of either length
        }
        else
        {
            result += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

std::string Message(const std::string& path, const std::string& reason)
{
    return path.empty() ? Printable(reason) : "at " + Printable(path) + ": " + Printable(reason);
}

} // namespace

JsonError::JsonError(std::size_t line, std::size_t column, const std::string& path, const std::string& reason)
    : std::runtime_error(std::to_string(line) + ":" + std::to_string(column) + ": " + Message(path, reason)), m_line(line),
      m_column(column), m_path(std::make_shared<const std::string>(path))
{
}

JsonError::~JsonError() = default;

JsonWriteError::JsonWriteError(const std::string& path, const std::string& reason)
    : std::runtime_error(Message(path, reason)), m_path(std::make_shared<const std::string>(path))
{
}

JsonWriteError::~JsonWriteError() = default;

} // namespace Ombrel
