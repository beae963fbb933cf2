#ifndef OMBREL_EFFECTS_TOOL_CHANGE_COMMANDS_H
#define OMBREL_EFFECTS_TOOL_CHANGE_COMMANDS_H

#include "Document.h"
#include "PropertyPath.h"
#include "Report.h"

#include <string>

namespace Ombrel::EffectsTool
{

// The commands that compare files, and change lists of effects.

/// What differs between two files, or two folders whose files are paired by name: a line each.
/// @param isJson of two files, as the JSON Patch from the one to the other
/// @throws ToolError `Usage` for a file and a folder, or a patch of folders; `File` or `BadInput` as `Document::Load`
Report CompareFiles(const std::string& before, const std::string& after, const ReadingOptions& options, bool isJson);

/// The file with the operations of a JSON Patch. One that does not fit becomes a complaint, and nothing is done.
/// @throws ToolError `BadInput` if the other document is no list
Report PatchDocument(const Document& document, const Document& patch);

/// What two files have made of a third. Each conflict becomes a complaint, and the value of ours is taken.
Report MergeDocuments(const Document& ours, const Document& base, const Document& theirs);

/// The file with another element in a list.
/// @param path ends with the index that the element then has, or with "-" for the end
/// @param text JSON, or the class id of a default effect
/// @throws ToolError `Usage` if there is no such list or the element cannot stand there
Report InsertElement(const Document& document, const Path& path, const std::string& text);

/// @throws ToolError `Usage` if there is no such element of a list
Report RemoveElement(const Document& document, const Path& path);

/// @param to where the element then is, or "-" for the end of a list
/// @throws ToolError `Usage` if there is no such element or list
Report MoveElement(const Document& document, const Path& from, const Path& to);

} // namespace Ombrel::EffectsTool

#endif
