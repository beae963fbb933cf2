#include "ReferencePages.h"

#include "EffectForms.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Values.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>
#include <set>
#include <string_view>

namespace Ombrel::EffectsTool
{
namespace
{

using Proc::EnumNameTable;
using Proc::ValueKind;
using Proc::ValueSchema;

struct KindNames
{
    const char* one;
    const char* many; // as elements of a list
};

KindNames NamesOf(ValueKind kind)
{
    switch (kind)
    {
    case ValueKind::Int32:
        return {"int32", "int32"};
    case ValueKind::UInt32:
        return {"uint32", "uint32"};
    case ValueKind::UInt8:
        return {"uint8", "uint8"};
    case ValueKind::Int64:
        return {"int64", "int64"};
    case ValueKind::UInt64:
        return {"uint64", "uint64"};
    case ValueKind::Float64:
        return {"float64", "float64"};
    case ValueKind::Float32:
        return {"float32", "float32"};
    case ValueKind::Bool:
        return {"bool", "bools"};
    case ValueKind::String:
        return {"string", "strings"};
    case ValueKind::Enum:
        return {"enumeration", "names"};
    case ValueKind::Color:
        return {"colour", "colours"};
    case ValueKind::ColorMap:
        return {"colours by byte", "colours by byte"};
    case ValueKind::Record:
        return {"record", "records"};
    case ValueKind::List:
        return {"list", "lists"};
    case ValueKind::Set:
        return {"set", "sets"};
    case ValueKind::Effect:
        return {"effect", "effects"};
    case ValueKind::Other:
        break;
    }
    return {"of its own form", "of their own form"};
}

std::string Joined(std::initializer_list<std::string_view> parts)
{
    std::string text;
    for (const std::string_view part : parts)
    {
        text += part;
    }
    return text;
}

// The anchor that Markdown hosts give to a heading of letters, digits and underscores.
std::string Anchor(std::string_view title)
{
    std::string anchor(title);
    std::ranges::transform(anchor, anchor.begin(),
                           [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return anchor;
}

std::string Link(std::string_view title, const std::string& file)
{
    return Joined({"[", title, "](", file, "#", Anchor(title), ")"});
}

std::string Code(std::string_view value)
{
    std::string text;
    for (const char c : value)
    {
        text += c == '|' ? "\\" : ""; // it would end the cell of a table, within code too
        text += c;
    }
    return Joined({"`", text, "`"});
}

std::string Quoted(std::string_view name)
{
    return Joined({"\"", name, "\""});
}

std::string InputsText(const PhotoCore::EffectClass& effectClass)
{
    const std::string inputs = InputsOf(effectClass);
    return inputs == "1" ? "1 input" : (inputs == "var" ? "a variable number of" : inputs) + " inputs";
}

// An item of a Markdown list, wrapped at the width of the hand-written pages.
std::string Item(const std::string& text)
{
    constexpr std::size_t width = 128;
    std::string item;
    std::string line = "-";
    for (std::size_t begin = 0; begin < text.size();)
    {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        if (line.size() + 1 + (end - begin) > width)
        {
            item += line + '\n';
            line.assign(1, ' ');
        }
        line += ' ' + text.substr(begin, end - begin);
        begin = end + 1;
    }
    return item + line + '\n';
}

std::string NamesText(const EnumNameTable& names, const std::string& unknown)
{
    std::string text;
    for (const Proc::EnumNameRow& row : names.rows)
    {
        text += (text.empty() ? "" : ", ") + Quoted(row.name);
    }
    if (!unknown.empty())
    {
        return text + "; an unknown name " + unknown;
    }
    const std::string_view fallback = names.NameOf(names.fallback);
    return text + "; an unknown name reads as " +
           (fallback.empty() ? std::to_string(names.fallback) + ", which has no name and is written as \"\""
                             : Quoted(fallback));
}

/// Writes the sections of one page.
class PageWriter
{
public:
    PageWriter(const ReferenceNotes& notes, const ReferenceSections& sections, std::size_t page)
        : m_notes(notes), m_sections(sections), m_page(page)
    {
    }

    std::string Text(const ReferenceSection& section) const
    {
        const std::string heading = Joined({"\n## ", section.title, "\n\n"});
        std::string text = Joined({AnchorOfClassId(section), heading, Head(section), Table(section), Members(section)});
        std::string items;
        for (const EnumNameTable* names : EnumerationsOf(section))
        {
            items += EnumerationItem(section, *names);
        }
        if (section.notedClass)
        {
            items += Item("Compares: " + section.notedClass->compares) + Item("Empty: " + section.notedClass->empty);
        }
        return text + (items.empty() ? "" : "\n") + items + Example(section);
    }

private:
    std::string LinkTo(const ReferenceSection& section) const
    {
        return Link(section.title, section.page == m_page ? "" : m_notes.pages[section.page].name + ".md");
    }

    // Empty if the heading has the same anchor.
    static std::string AnchorOfClassId(const ReferenceSection& section)
    {
        if (!section.notedClass)
        {
            return "";
        }
        const std::string anchor = Anchor(section.notedClass->effectClass->classId);
        return anchor == Anchor(section.title) ? "" : Joined({"\n<a name=\"", anchor, "\"></a>\n"});
    }

    static std::string Head(const ReferenceSection& section)
    {
        if (!section.notedClass)
        {
            return "A record that several others contain.\n";
        }
        const PhotoCore::EffectClass& effectClass = *section.notedClass->effectClass;
        return Joined({"`", effectClass.classId, "`, ", InputsText(effectClass), ", ",
                       RegistrationText(effectClass.registration), ", ", AccessText(effectClass),
                       ".\n\n`#include \"Proc/EffectSettings/", effectClass.className, ".h\"`\n"});
    }

    std::string Table(const ReferenceSection& section) const
    {
        std::string rows;
        for (const ReferenceRow& row : m_sections.RowsOf(section))
        {
            rows += Joined({"| `", row.path, "` | ", Kind(*row.value, false), " | ", Default(row), " | ",
                            row.access.empty() ? "" : Code(row.access) + " ", "|\n"});
        }
        return rows.empty() ? "\nNo keys.\n" : "\n| Key | Kind | Default | C++ |\n|---|---|---|---|\n" + rows;
    }

    std::string Members(const ReferenceSection& section) const
    {
        const auto found = m_notes.members.find(std::string(section.title));
        const std::vector<KeylessMember> ofRecord =
            found == m_notes.members.end() ? std::vector<KeylessMember>{} : found->second;
        std::string rows;
        for (const KeylessMember& row : section.notedClass ? section.notedClass->members : ofRecord)
        {
            rows += Joined({"| ", Code(row.member), " | ", row.type, " | ", row.defaultValue, " | ", row.compared, " | ",
                            row.copied, " |\n"});
        }
        return rows.empty()
                   ? ""
                   : "\nMembers without a key:\n\n| Member | Type | Default | Compared | Copied |\n|---|---|---|---|---|\n" +
                         rows;
    }

    static std::string Example(const ReferenceSection& section)
    {
        return section.notedClass ? Joined({"\n```json\n", section.notedClass->example, "\n```\n"}) : "";
    }

    std::string Kind(const ValueSchema& value, bool isMany) const
    {
        const KindNames names = NamesOf(value.kind);
        std::string name = isMany ? names.many : names.one;
        if (value.element && value.kind != ValueKind::ColorMap) // its name says it all
        {
            return name + " of " + Kind(*value.element, true);
        }
        if (!value.record)
        {
            return name;
        }
        const Proc::RecordSchema& record = value.record();
        if (IsPair(record))
        {
            const ValueSchema* first = record.fields[0].value;
            const ValueSchema* second = record.fields[1].value;
            const std::string parts =
                first == second ? Kind(*first, true) : Kind(*first, false) + " and " + Kind(*second, false);
            return (isMany ? "pairs of " : "pair of ") + parts;
        }
        const ReferenceSection* section = m_sections.Find(record);
        return section ? name + " " + LinkTo(*section) : name;
    }

    static std::string Default(const ReferenceRow& row)
    {
        const bool isRecord = row.value->kind == ValueKind::Record && !IsPair(row.value->record());
        return isRecord && row.defaultValue == DefaultsOf(row.value->record()) ? "its own" : Code(Shown(row.defaultValue));
    }

    // Without repeats, in the order of the keys.
    std::vector<const EnumNameTable*> EnumerationsOf(const ReferenceSection& section) const
    {
        std::vector<const EnumNameTable*> all;
        for (const ReferenceRow& row : m_sections.RowsOf(section))
        {
            for (const ValueSchema* leaf : LeavesOf(*row.value))
            {
                if (leaf->names && std::ranges::find(all, leaf->names) == all.end())
                {
                    all.push_back(leaf->names);
                }
            }
        }
        return all;
    }

    std::string EnumerationItem(const ReferenceSection& section, const EnumNameTable& names) const
    {
        std::string keys;
        std::string unknown;
        for (const ReferenceRow& row : m_sections.RowsOf(section))
        {
            const auto isOfNames = [&names](const ValueSchema* leaf) { return leaf->names == &names; };
            if (std::ranges::any_of(LeavesOf(*row.value), isOfNames))
            {
                keys += (keys.empty() ? "`" : ", `") + row.path + "`";
                unknown += UnknownName(section, row.path);
            }
        }
        const ReferenceSection& home = m_sections.Find(names);
        return Item(keys + ": " + (&home == &section ? NamesText(names, unknown) : "the names of " + LinkTo(home)));
    }

    static std::string UnknownName(const ReferenceSection& section, const std::string& path)
    {
        const auto* notes = section.notedClass ? &section.notedClass->unknownNames : nullptr;
        return notes && notes->contains(path) ? notes->at(path) : "";
    }

    const ReferenceNotes& m_notes;
    const ReferenceSections& m_sections;
    std::size_t m_page;
};

constexpr const char* WRITTEN_BY =
    "<!-- Written by scripts/update from the library, from notes/ and from examples/effects/. -->\n";

constexpr const char* HOW_TO_READ = R"(
## How to read a page

- **First line:** the class id, how many images the effect takes, how its class gets into the registry, and whether it has a
  property access. An effect of a class that is not registered can be written but not read back.
- **Link:** every class has two anchors, its name and its class id, both in lower case: `colour.md#adjustersettings` and
  `colour.md#effect_adjuster`.
- **Key:** in the order of reading. A path leads through nested maps: `frameInfo/width` is the key "width" of the map under
  "frameInfo", and `*` is any index of a list. Every effect also has the keys "name", "implName" and "helperSettings". No
  comparison looks at the last two. A copy takes them over, except a copy of a tile.
- **Kind:** one of [the kinds of the stored form](../stored-form.md#the-values).
- **Default:** the value that a missing key reads as and that is not written. It is JSON with every key written out. A nested
  record has two defaults. The row of its own key shows the default of the whole map, for when the map is missing. The rows of
  the keys below it, or the page that its link leads to, show the default of each key, for when the key is missing in a map
  that is present. "its own" means that the two agree.
- **C++:** the member of the record, or its setter and getter. `GetTypedSettings` of the settings class returns the record. Only
  `ResizeSettings` and `TileSettings` hold the values themselves.
- **Members without a key:** what else the record or the settings class holds. No key stores it as it is, so a new effect from
  the registry has the default. Reading a tree leaves it alone, unless its row names a key that sets it. "Compared" says whether
  `==` looks at it, "Copied" whether copies and clones have it.
- **Names** of an enumeration are exact and keep their misspellings.
- **Compares:** what `==` looks at besides the class id.
- **Empty:** when `IsEmpty` of the settings class is true, and when `IsEmpty` of its record is true if the two differ. Empty does
  not mean that the effect would do nothing. A record that is empty "as by default" is not empty with any other value, such as
  another factor at an intensity of 0.
- **Example:** a stored effect as JSON. A class that is not registered has its default effect with every key written out.

## All classes

| Class | Class id | Inputs | Registration |
|---|---|---|---|
)";

} // namespace

std::string PageText(const ReferenceNotes& notes, std::size_t page, const ReferenceSections& sections)
{
    const PageWriter writer(notes, sections, page);
    std::string text = WRITTEN_BY + ("# " + notes.pages[page].title) + "\n\n[All pages, and how to read them](README.md)\n";
    for (const ReferenceSection& section : sections.All())
    {
        text += section.page == page ? writer.Text(section) : "";
    }
    return text;
}

std::string IndexText(const std::vector<ReferencePage>& pages)
{
    std::string list;
    std::set<std::string> rows; // by class name, with which they begin
    for (const ReferencePage& page : pages)
    {
        list += Joined({"- [", page.title, "](", page.name, ".md): ", std::to_string(page.classes.size()), " classes\n"});
        for (const NotedClass& noted : page.classes)
        {
            const PhotoCore::EffectClass& effectClass = *noted.effectClass;
            rows.insert(Joined({"| ", Link(effectClass.className, page.name + ".md"), " | [`", effectClass.classId, "`](",
                                page.name, ".md#", Anchor(effectClass.classId), ") | ", InputsOf(effectClass), " | ",
                                RegistrationText(effectClass.registration), " |\n"}));
        }
    }
    std::string text = std::string(WRITTEN_BY) + "# Reference\n\nEvery settings class with its keys.\n\n" + list + HOW_TO_READ;
    for (const std::string& row : rows)
    {
        text += row;
    }
    return text;
}

} // namespace Ombrel::EffectsTool
