#ifndef OMBREL_EFFECTS_TOOL_TEXT_FILE_H
#define OMBREL_EFFECTS_TOOL_TEXT_FILE_H

#include "System.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Ombrel::EffectsTool
{

/// The name of a file in messages: "<stdin>" for "-". Control characters and bytes that are not UTF-8 are escaped.
std::string NameOfFile(const std::string& file);

/// The content of a file, or of the standard input for "-".
/// @throws ToolError `File`, also if it has more than `maxBytes`
std::string ReadTextFile(const std::string& file, std::size_t maxBytes);

/// Reads what an open file has left.
/// @throws ToolError as `ReadTextFile`; `name` is its name
std::string ReadRest(const System::File& file, const std::string& name, std::size_t maxBytes);

/// Opens a file, or the standard input for "-".
/// @throws ToolError `File`
System::File OpenTextFile(const std::string& file);

/// @throws ToolError `File`, with the last error of the system
[[noreturn]] void ThrowUnreadable(const std::string& file);

/// Creates or overwrites a file. This is not atomic, so it is only for files that can be written again.
/// @throws ToolError `File`
void WriteTextFile(const std::string& file, std::string_view text);

} // namespace Ombrel::EffectsTool

#endif
