#ifndef OMBREL_EFFECTS_TOOL_CLASS_COMMANDS_H
#define OMBREL_EFFECTS_TOOL_CLASS_COMMANDS_H

#include "Report.h"

#include <string>

namespace Ombrel::EffectsTool
{

// The commands on classes, which read no file.

/// All settings classes: name, class id, number of inputs, and whether it is registered.
/// @param pattern a part of the names or ids that are meant, in upper or lower case; empty for all
/// @throws ToolError `Usage` if there is none
Report ListClasses(const std::string& pattern, bool isJson);

/// Names the class id that is most like one that does not exist.
[[noreturn]] void ThrowUnknownClass(const std::string& classId);

/// A default effect with all its properties.
/// @throws ToolError `Usage` for an unknown class id
Report NewEffect(const std::string& classId, bool nonFinite);

/// What can stand in an effect of the class.
/// @throws ToolError `Usage` for an unknown class id
Report DescribeClass(const std::string& classId, bool isJson);

/// A JSON Schema of stored effects: of one class, or of all for an empty id.
/// @throws ToolError `Usage` for an id that is not registered
Report WriteSchema(const std::string& classId, bool allowUnknownKeys, bool nonFinite);

/// Writes the pages of the reference into a folder, which is created if it does not exist. What no schema says comes from a
/// folder of notes, see `LoadReferenceNotes`. The example of a registered class is the file "<class id>.json" of another
/// folder.
/// @throws ToolError `File` or `BadInput`; nothing is written if the notes or the examples are at fault
Report WriteReference(const std::string& notesFolder, const std::string& examplesFolder, const std::string& outputFolder);

} // namespace Ombrel::EffectsTool

#endif
