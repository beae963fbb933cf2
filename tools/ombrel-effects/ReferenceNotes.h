#ifndef OMBREL_EFFECTS_TOOL_REFERENCE_NOTES_H
#define OMBREL_EFFECTS_TOOL_REFERENCE_NOTES_H

#include "Proc/EffectSettings/EffectSettingsExport.h"

#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// A settings class with what the library cannot tell of itself: its comparison and its `IsEmpty` are code and no data.
struct NotedClass
{
    const PhotoCore::EffectClass* effectClass;
    std::string compares;
    std::string empty;
};

/// One page of the reference: the classes of one subsystem.
struct ReferencePage
{
    std::string name; // of the files, without their endings
    std::string title;
    std::vector<NotedClass> classes; // by name
};

/// All pages in their order. The folder holds a file "<page>.json" for each, a map from class names to maps with the texts
/// "compares" and "empty".
/// @throws ToolError `UsageOrFile` if a page has no file; `BadInput` if a file has another form or belongs to no page, or if
///         a class is noted nowhere or twice, or a note is of no class; all of these are named at once
std::vector<ReferencePage> LoadReferenceNotes(const std::string& folder);

} // namespace Ombrel::EffectsTool

#endif
