#include "PropertyTreeJson/JsonText.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

namespace Ombrel
{
namespace
{

// A key may come from a hostile file: nothing of it may move the cursor of a terminal or spoil the encoding of a log.
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
        else if (byte < 0x20 || byte == 0x7F)
        {
            JsonText::AppendEscape(result, text.front());
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
    return path.empty() ? reason : "at " + Printable(path) + ": " + reason;
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
