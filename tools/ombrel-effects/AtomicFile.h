#ifndef OMBREL_EFFECTS_TOOL_ATOMIC_FILE_H
#define OMBREL_EFFECTS_TOOL_ATOMIC_FILE_H

#include <string>
#include <string_view>

namespace Ombrel::EffectsTool
{

/// Replaces the content of an existing regular file by `text`. A reader finds the whole old content or the whole new content,
/// even after a crash. A symbolic link stays, and its target is replaced. The mode is kept, and also the owner if the system
/// allows it. Other hard links keep the old content.
/// @throws ToolError `UsageOrFile`; the file is then unchanged, and no temporary file is left
void ReplaceFile(const std::string& file, std::string_view text);

} // namespace Ombrel::EffectsTool

#endif
