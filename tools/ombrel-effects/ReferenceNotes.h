#ifndef OMBREL_EFFECTS_TOOL_REFERENCE_NOTES_H
#define OMBREL_EFFECTS_TOOL_REFERENCE_NOTES_H

#include "Proc/EffectSettings/EffectSettingsExport.h"

#include <map>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// A member without a key. It has no place in a stored effect and none in a schema. Each text is one cell of a table.
struct KeylessMember
{
    std::string member; // a data member, or a setter and a getter
    std::string type;
    std::string defaultValue;
    std::string compared;
    std::string copied;
};

/// By the record or settings class that declares the members.
using KeylessMembers = std::map<std::string, std::vector<KeylessMember>>;

/// A settings class with what no schema says about it: its comparison and its `IsEmpty` are code.
struct NotedClass
{
    const PhotoCore::EffectClass* effectClass;
    std::string compares;
    std::string empty;
    std::map<std::string, std::string> unknownNames; // by key: what an unknown name does, where it is not read as a value
    std::vector<KeylessMember> members;
    std::string example; // a stored effect as JSON text, without a line end; not part of the notes
};

/// One page of the reference: the classes of one subsystem.
struct ReferencePage
{
    std::string name; // of the files, without their endings
    std::string title;
    std::vector<NotedClass> classes; // by name
};

/// What is read from the folder of notes.
struct ReferenceNotes
{
    std::vector<ReferencePage> pages; // in their order
    KeylessMembers members;
};

/// Reads a folder with one file per page and "members.json".
///
/// - "<page>.json" maps the names of settings classes to notes. A note has the texts "compares" and "empty". It may have
///   "members", a list of names from "members.json", and "unknownNames", a map from keys to texts.
/// - "members.json" maps the name of a record or settings class to the list of its members without a key. Each has the texts
///   "member", "type", "default", "compared" and "copied".
///
/// A class has the members of all the names that it lists, in their order. A member that is declared twice has the later row
/// at the earlier place: so a derived record changes a default.
/// @throws ToolError `File` if a file is missing; `BadInput` if a file has another form or an unknown name, if a class
///         has no note or two, or if a note is of no class. One message names all faults
ReferenceNotes LoadReferenceNotes(const std::string& folder);

} // namespace Ombrel::EffectsTool

#endif
