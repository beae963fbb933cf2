#include "PropertyTreeJson/MessageText.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

namespace Ombrel
{
namespace
{

using MessageText::Printable;

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
