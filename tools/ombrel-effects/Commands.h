#ifndef OMBREL_EFFECTS_TOOL_COMMANDS_H
#define OMBREL_EFFECTS_TOOL_COMMANDS_H

#include "Document.h"
#include "PropertyPath.h"
#include "ToolError.h"

#include <optional>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// The result of a command, which `main` prints or writes. No command prints anything itself.
struct Outcome
{
    std::optional<std::string> text; // for standard output or for the file; nothing if it is not to be written
    std::vector<std::string> complaints;
    ExitCode code = ExitCode::Fine;
};

// Each command is one function. It throws ToolError if it has no result.

/// All settings classes: name, class id, number of inputs, and whether it is registered.
Outcome ListClasses();

/// A default effect with all its properties.
Outcome NewEffect(const std::string& classId, bool nonFinite);

/// Every effect with its properties, for people. An element that cannot be read becomes a complaint; the others are shown.
Outcome ShowEffects(const Document& document);

/// One property, a value within it, or a whole effect with all its properties.
Outcome GetValue(const Document& document, const Path& path);

/// The document with one value changed. If the library stores another value than the given one, or drops unknown keys beside
/// it, there is a text only when `isForced`.
Outcome SetValue(Document document, const Path& path, const std::string& text, bool isForced);

/// The document as the library reads and writes it. Each unknown key is dropped and becomes a complaint.
Outcome Normalise(Document document);

/// Writes the pages of the reference into a folder, which is created if it does not exist. What no schema says comes from a
/// folder of notes, see `LoadReferenceNotes`. The example of a registered class is the file "<class id>.json" of another
/// folder.
/// @throws ToolError `UsageOrFile` or `BadInput`; nothing is written if the notes or the examples are at fault
Outcome WriteReference(const std::string& notesFolder, const std::string& examplesFolder, const std::string& outputFolder);

} // namespace Ombrel::EffectsTool

#endif
