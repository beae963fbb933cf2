#ifndef OMBREL_EFFECTS_TOOL_VALUE_COMMANDS_H
#define OMBREL_EFFECTS_TOOL_VALUE_COMMANDS_H

#include "Document.h"
#include "PropertyPath.h"
#include "Report.h"

#include <string>

namespace Ombrel::EffectsTool
{

// The commands on one value of a file.

/// The value as it is read, or as it stands if it `isRaw`. With an index alone it is the whole effect, with every key.
/// @throws ToolError `Usage` if there is no such value, `BadInput` if it cannot be read
Report GetValue(const Document& document, const Path& path, bool isRaw);

/// The file with one value changed. All else stands as it stood. A value that would be read as another one, or that changes
/// other values, becomes a complaint.
/// @throws ToolError `Usage` if there is no such key or the value cannot stand there, `BadInput` if the effect is not known
Report SetValue(const Document& document, const Path& path, const std::string& text);

/// The file without a key, which then has its default.
/// @throws ToolError `Usage` if there is no such key in the file
Report UnsetValue(const Document& document, const Path& path);

} // namespace Ombrel::EffectsTool

#endif
