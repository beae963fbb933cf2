#ifndef OMBREL_EFFECTS_TOOL_TEXT_FILE_H
#define OMBREL_EFFECTS_TOOL_TEXT_FILE_H

#include <string>
#include <string_view>

namespace Ombrel::EffectsTool
{

/// What the system says of `errno`.
std::string LastError();

/// The name of a file in messages: "<stdin>" for "-".
std::string NameOfFile(const std::string& file);

/// The content of a file, or of the standard input for "-".
/// @throws ToolError `UsageOrFile`
std::string ReadTextFile(const std::string& file);

/// Creates or overwrites a file. This is not atomic, so it is only for files that can be written again.
/// @throws ToolError `UsageOrFile`
void WriteTextFile(const std::string& file, std::string_view text);

} // namespace Ombrel::EffectsTool

#endif
