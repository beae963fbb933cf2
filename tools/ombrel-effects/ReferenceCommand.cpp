#include "ClassCommands.h"
#include "Document.h"
#include "EffectForms.h"
#include "FindingText.h"
#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "PropertyPath.h"
#include "ReferenceNotes.h"
#include "ReferencePages.h"
#include "ReferenceSections.h"
#include "System.h"
#include "TextFile.h"
#include "Values.h"

#include <algorithm>
#include <filesystem>
#include <string>

namespace Ombrel::EffectsTool
{
namespace
{

// What stands before a child: its key in a map, nothing in a list.
std::string KeyOf(const PropertyTree& container, const std::string& step)
{
    return container.isList() ? "" : Shown(PropertyTreeScalar(step)) + ": ";
}

// JSON on one line, with a space behind each comma and colon. The examples are small, so recursion is safe here and below.
std::string InOneLine(const PropertyTree& tree)
{
    if (!tree.isMap() && !tree.isList())
    {
        return Shown(tree);
    }
    std::string text;
    for (const std::string& step : StepsOf(tree))
    {
        text += (text.empty() ? "" : ", ") + KeyOf(tree, step) + InOneLine(*FindChild(tree, step));
    }
    return tree.isList() ? "[" + text + "]" : "{" + text + "}";
}

// JSON with each map and list on one line where it fits.
std::string Compact(const PropertyTree& tree, std::size_t indent)
{
    constexpr std::size_t width = 100;
    std::string line = InOneLine(tree);
    if (indent + line.size() <= width || !(tree.isMap() || tree.isList()))
    {
        return line;
    }
    std::string text;
    for (const std::string& step : StepsOf(tree))
    {
        text += (text.empty() ? "\n" : ",\n") + std::string(indent + 2, ' ') + KeyOf(tree, step) +
                Compact(*FindChild(tree, step), indent + 2);
    }
    return line.front() + text + '\n' + std::string(indent, ' ') + line.back();
}

// The stored effect of a registered class comes from a file. It goes through the library, so that the page shows what the
// library writes.
std::string ExampleOf(const PhotoCore::EffectClass& effectClass, const std::filesystem::path& folder)
{
    if (effectClass.registration == PhotoCore::Registration::None)
    {
        return Compact(FullForm(effectClass.create()), 0);
    }
    const std::string file = System::NameOf(folder / effectClass.classId) + ".json";
    const Document document = Document::Load(file, {});
    const PropertyTree& stored = document.Tree();
    const PropertyTree* name = FindChild(stored, "name");
    if (!name || *name != PropertyTree(effectClass.classId))
    {
        throw ToolError(ExitCode::BadInput,
                        file + ": expected one effect of class id \"" + std::string(effectClass.classId) + "\"");
    }
    for (const Inspection::Finding& finding : Inspection::Check(stored))
    {
        if (SeverityOf(finding.code) == Inspection::Severity::Error)
        {
            throw ToolError(ExitCode::BadInput, LineOf(finding, document, false));
        }
    }
    return Compact(Inspection::Normalise(stored), 0);
}

// The section shows these members: it is that of the record that declares them, or of a class that lists the record.
bool Shows(const ReferenceSection& section, const std::string& name, const std::vector<KeylessMember>& members)
{
    if (!section.notedClass)
    {
        return section.title == name;
    }
    const auto& rows = section.notedClass->members;
    return std::ranges::all_of(members, [&rows](const KeylessMember& member)
                               { return std::ranges::find(rows, member.member, &KeylessMember::member) != rows.end(); });
}

// Members in "members.json" that no section shows are a mistake.
void CheckMembers(const ReferenceNotes& notes, const ReferenceSections& sections, const std::string& folder)
{
    std::string complaints;
    for (const auto& entry : notes.members)
    {
        if (std::ranges::none_of(sections.All(), [&entry](const ReferenceSection& section)
                                 { return Shows(section, entry.first, entry.second); }))
        {
            complaints +=
                (complaints.empty() ? "" : "\n") + folder + ": " + entry.first + ": no class and no record has these members";
        }
    }
    if (!complaints.empty())
    {
        throw ToolError(ExitCode::BadInput, complaints);
    }
}

} // namespace

Report WriteReference(const std::string& notesFolder, const std::string& examplesFolder, const std::string& outputFolder)
{
    ReferenceNotes notes = LoadReferenceNotes(notesFolder);
    for (ReferencePage& page : notes.pages)
    {
        for (NotedClass& noted : page.classes)
        {
            noted.example = ExampleOf(*noted.effectClass, System::PathOf(examplesFolder));
        }
    }
    const ReferenceSections sections(notes.pages);
    CheckMembers(notes, sections, notesFolder);
    const std::filesystem::path output = System::PathOf(outputFolder);
    std::filesystem::create_directories(output);
    for (std::size_t page = 0; page < notes.pages.size(); ++page)
    {
        WriteTextFile(System::NameOf(output / (notes.pages[page].name + ".md")), PageText(notes, page, sections));
    }
    WriteTextFile(System::NameOf(output / "README.md"), IndexText(notes.pages));
    return {};
}

} // namespace Ombrel::EffectsTool
