#ifndef OMBREL_EFFECTS_TOOL_ATOMIC_FILE_H
#define OMBREL_EFFECTS_TOOL_ATOMIC_FILE_H

#include <string>
#include <string_view>

namespace Ombrel::EffectsTool
{

/// Makes `text` the content of an existing regular file: whoever opens it finds the old content or the new one, whole, even
/// after a crash. A symbolic link stays and its target is replaced. The mode is kept, and the owner where the system allows
/// it; other hard links keep the old content.
/// @throws ToolError `UsageOrFile`; the file is then as it was, and nothing is left beside it
void ReplaceFile(const std::string& file, std::string_view text);

} // namespace Ombrel::EffectsTool

#endif
