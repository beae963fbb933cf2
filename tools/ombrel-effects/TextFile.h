#ifndef OMBREL_EFFECTS_TOOL_TEXT_FILE_H
#define OMBREL_EFFECTS_TOOL_TEXT_FILE_H

#include <string>
#include <string_view>

namespace Ombrel::EffectsTool
{

/// What messages call a file: "<stdin>" for "-".
std::string NameOfFile(const std::string& file);

/// The content of a file, or of the standard input for "-".
/// @throws ToolError `UsageOrFile`
std::string ReadTextFile(const std::string& file);

/// Makes a file or overwrites it; not in one step, so for what can be made again.
/// @throws ToolError `UsageOrFile`
void WriteTextFile(const std::string& file, std::string_view text);

} // namespace Ombrel::EffectsTool

#endif
