#include "ReferenceNotes.h"

#include "Document.h"
#include "System.h"
#include "ToolError.h"
#include "Values.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <string_view>

namespace Ombrel::EffectsTool
{
namespace
{

using PhotoCore::EffectClass;

struct PageTitle
{
    const char* name;
    const char* title;
};

constexpr PageTitle PAGE_TITLES[] = {
    {"framework", "Framework"},
    {"colour", "Tone and colour"},
    {"blur-and-detail", "Blur, denoise and detail"},
    {"neural", "Neural and model effects"},
    {"faces", "Face retouching"},
    {"geometry", "Geometry"},
    {"masks", "Masks and composition"},
    {"artistic", "Artistic filters"},
};

constexpr const char* MEMBERS = "members";

/// Reads the notes file by file and collects their faults, so that one run shows them all.
class NotesReader
{
public:
    explicit NotesReader(std::string folder) : m_folder(std::move(folder)) {}

    /// To be called before the pages are read.
    const KeylessMembers& ReadMembers()
    {
        const std::string file = FileOf(MEMBERS);
        const PropertyTree notes = Document::Load(file, {}).Tree();
        if (!notes.isMap())
        {
            Complain(file + ": found " + KindOf(notes) + ", expected a map from names of classes to lists of members");
            return m_members;
        }
        for (const auto& [name, list] : notes.getMap())
        {
            const std::string where = file + ": " + name + ": ";
            if (!list.isList())
            {
                Complain(where + "found " + KindOf(list) + ", expected a list of members");
                continue;
            }
            for (const PropertyTree& row : list.getList())
            {
                m_members[name].push_back({LineOf(row, "member", where), LineOf(row, "type", where),
                                           LineOf(row, "default", where), LineOf(row, "compared", where),
                                           LineOf(row, "copied", where)});
            }
        }
        return m_members;
    }

    ReferencePage ReadPage(const PageTitle& page)
    {
        const std::string file = FileOf(page.name);
        ReferencePage result{page.name, page.title, {}};
        const PropertyTree notes = Document::Load(file, {}).Tree();
        if (!notes.isMap())
        {
            Complain(file + ": found " + KindOf(notes) + ", expected a map from class names to notes");
            return result;
        }
        for (const auto& [className, note] : notes.getMap())
        {
            const std::string where = file + ": " + className + ": ";
            if (const EffectClass* effectClass = Take(className, where, file))
            {
                result.classes.push_back({effectClass, LineOf(note, "compares", where), LineOf(note, "empty", where),
                                          UnknownNamesOf(note, where), MembersOf(note, where), ""});
            }
        }
        return result;
    }

    void CheckThatNothingIsLeft()
    {
        for (const EffectClass& effectClass : PhotoCore::EffectClasses())
        {
            if (!m_fileOfClass.contains(effectClass.className))
            {
                Complain(m_folder + ": " + std::string(effectClass.className) + ": has no note");
            }
        }
        for (const auto& entry : std::filesystem::directory_iterator(System::PathOf(m_folder)))
        {
            const auto stem = entry.path().stem();
            if (stem != MEMBERS && std::ranges::find(PAGE_TITLES, stem, &PageTitle::name) == std::end(PAGE_TITLES))
            {
                Complain(System::NameOf(entry.path()) + ": there is no page of this name");
            }
        }
        if (!m_complaints.empty())
        {
            throw ToolError(ExitCode::BadInput, m_complaints);
        }
    }

private:
    std::string FileOf(std::string_view page) const { return System::NameOf(System::PathOf(m_folder) / page) + ".json"; }

    const EffectClass* Take(const std::string& className, const std::string& where, const std::string& file)
    {
        const auto classes = PhotoCore::EffectClasses();
        const auto found = std::ranges::find(classes, className, &EffectClass::className);
        if (found == classes.end())
        {
            Complain(where + "there is no such class");
            return nullptr;
        }
        const auto [earlier, isNew] = m_fileOfClass.try_emplace(found->className, file);
        if (!isNew)
        {
            Complain(where + "noted in " + earlier->second + " too");
            return nullptr;
        }
        return &*found;
    }

    std::string LineOf(const PropertyTree& note, const std::string& key, const std::string& where)
    {
        const bool isThere = note.isMap() && note.contains(key) && IsString(note[key]);
        if (!isThere || note[key].getScalar().toString().empty())
        {
            Complain(where + "has no text \"" + key + "\"");
            return {};
        }
        return note[key].getScalar().toString();
    }

    std::map<std::string, std::string> UnknownNamesOf(const PropertyTree& note, const std::string& where)
    {
        std::map<std::string, std::string> texts;
        if (!note.isMap() || !note.contains("unknownNames"))
        {
            return texts;
        }
        const PropertyTree& unknownNames = note["unknownNames"];
        if (!unknownNames.isMap())
        {
            Complain(where + "\"unknownNames\": found " + KindOf(unknownNames) + ", expected a map from keys to texts");
            return texts;
        }
        for (const auto& entry : unknownNames.getMap())
        {
            texts[entry.first] = LineOf(unknownNames, entry.first, where + "\"unknownNames\": ");
        }
        return texts;
    }

    std::vector<KeylessMember> MembersOf(const PropertyTree& note, const std::string& where)
    {
        std::vector<KeylessMember> rows;
        if (!note.isMap() || !note.contains(MEMBERS))
        {
            return rows;
        }
        const PropertyTree& names = note[MEMBERS];
        if (!names.isList())
        {
            Complain(where + "\"members\": found " + KindOf(names) + ", expected a list of names");
            return rows;
        }
        for (const PropertyTree& name : names.getList())
        {
            const auto found = IsString(name) ? m_members.find(name.getScalar().toString()) : m_members.end();
            if (found == m_members.end())
            {
                Complain(where + "\"members\": " + Shown(name) + " is not in " + FileOf(MEMBERS));
                continue;
            }
            for (const KeylessMember& row : found->second)
            {
                const auto earlier = std::ranges::find(rows, row.member, &KeylessMember::member);
                earlier == rows.end() ? rows.push_back(row) : void(*earlier = row);
            }
        }
        return rows;
    }

    void Complain(const std::string& complaint) { m_complaints += (m_complaints.empty() ? "" : "\n") + complaint; }

    std::string m_folder;
    KeylessMembers m_members;
    std::map<std::string_view, std::string> m_fileOfClass;
    std::string m_complaints;
};

} // namespace

ReferenceNotes LoadReferenceNotes(const std::string& folder)
{
    NotesReader reader(folder);
    ReferenceNotes notes{{}, reader.ReadMembers()};
    for (const PageTitle& title : PAGE_TITLES)
    {
        notes.pages.push_back(reader.ReadPage(title));
    }
    reader.CheckThatNothingIsLeft();
    return notes;
}

} // namespace Ombrel::EffectsTool
