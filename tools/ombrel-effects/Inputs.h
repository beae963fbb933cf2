#ifndef OMBREL_EFFECTS_TOOL_INPUTS_H
#define OMBREL_EFFECTS_TOOL_INPUTS_H

#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// The files that the user means: a folder stands for every "*.json" below it, in byte order. Folders that a symbolic link
/// leads to are passed over below another folder, since they may lead in a circle.
/// @param complaints gets a line for each folder that cannot be read
/// @throws ToolError `Usage` if a folder has no such file
std::vector<std::string> FilesOf(const std::vector<std::string>& names, std::vector<std::string>& complaints);

} // namespace Ombrel::EffectsTool

#endif
