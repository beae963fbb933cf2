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

using PhotoCore::Registration;
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

// Leads to a heading as the hosts of Markdown name it.
std::string Link(std::string_view title, const std::string& file)
{
    std::string anchor(title);
    std::ranges::transform(anchor, anchor.begin(),
                           [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return Joined({"[", title, "](", file, "#", anchor, ")"});
}

std::string Code(const PropertyTree& value)
{
    std::string text;
    for (const char c : Shown(value))
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

const char* RegistrationText(Registration registration)
{
    switch (registration)
    {
    case Registration::StartUpList:
        return "registered at start-up";
    case Registration::Factory:
        return "registered by `RegisterFactory`";
    case Registration::None:
        break;
    }
    return "not registered";
}

std::string InputsText(const PhotoCore::EffectClass& effectClass)
{
    const std::string inputs = InputsOf(effectClass);
    return inputs == "1" ? "1 input" : (inputs == "var" ? "a variable number of" : inputs) + " inputs";
}

// An item of a list, in lines of the length that hand-written pages have.
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

std::string NamesText(const EnumNameTable& names)
{
    std::string text;
    for (const Proc::EnumNameRow& row : names.rows)
    {
        text += (text.empty() ? "" : ", ") + Quoted(row.name);
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
    PageWriter(const std::vector<ReferencePage>& pages, const ReferenceSections& sections, std::size_t page)
        : m_pages(pages), m_sections(sections), m_page(page)
    {
    }

    std::string Text(const ReferenceSection& section) const
    {
        std::string text = Joined({"\n## ", section.title, "\n\n", Head(section), Table(section)});
        std::string items;
        for (const EnumNameTable* names : EnumerationsOf(section))
        {
            items += EnumerationItem(section, *names);
        }
        if (section.notedClass)
        {
            items += Item("Compares: " + section.notedClass->compares) + Item("Empty: " + section.notedClass->empty);
        }
        return text + (items.empty() ? "" : "\n") + items;
    }

private:
    std::string LinkTo(const ReferenceSection& section) const
    {
        return Link(section.title, section.page == m_page ? "" : m_pages[section.page].name + ".md");
    }

    static std::string Head(const ReferenceSection& section)
    {
        if (!section.notedClass)
        {
            return "A record that several others hold.\n";
        }
        const PhotoCore::EffectClass& effectClass = *section.notedClass->effectClass;
        return Joined({"`", effectClass.classId, "`, ", InputsText(effectClass), ", ",
                       RegistrationText(effectClass.registration), ".\n"});
    }

    std::string Table(const ReferenceSection& section) const
    {
        std::string rows;
        for (const ReferenceRow& row : m_sections.RowsOf(section))
        {
            rows += Joined({"| `", row.path, "` | ", Kind(*row.value, false), " | ", Default(row), " |\n"});
        }
        return rows.empty() ? "\nNo keys.\n" : "\n| Key | Kind | Default |\n|---|---|---|\n" + rows;
    }

    std::string Kind(const ValueSchema& value, bool isMany) const
    {
        const KindNames names = NamesOf(value.kind);
        std::string name = isMany ? names.many : names.one;
        if (value.element)
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
        return isRecord && row.defaultValue == DefaultsOf(row.value->record()) ? "its own" : Code(row.defaultValue);
    }

    // Each once, in the order of the keys.
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
        for (const ReferenceRow& row : m_sections.RowsOf(section))
        {
            const auto isOfNames = [&names](const ValueSchema* leaf) { return leaf->names == &names; };
            if (std::ranges::any_of(LeavesOf(*row.value), isOfNames))
            {
                keys += (keys.empty() ? "`" : ", `") + row.path + "`";
            }
        }
        const ReferenceSection& home = m_sections.Find(names);
        return Item(keys + ": " + (&home == &section ? NamesText(names) : "the names of " + LinkTo(home)));
    }

    const std::vector<ReferencePage>& m_pages;
    const ReferenceSections& m_sections;
    std::size_t m_page;
};

constexpr const char* WRITTEN_BY =
    "<!-- Written by scripts/reference. What stands here comes from the library, and from notes/. -->\n";

constexpr const char* HOW_TO_READ = R"(
## How to read a page

- **Class:** its class id, how many images it takes, and how the registry comes to know it. An effect of a class that is not
  registered can be written and not read back.
- **Key:** in the order of reading. A path leads through nested maps: `frameInfo/width` stands in the map under "frameInfo", and
  `*` is any place in a list. Every effect has the keys "name", "implName" and "helperSettings" besides.
- **Kind:** as [the stored form](../stored-form.md) tells it.
- **Default:** what a missing key reads as, and what is left out when an effect is written; here as JSON with every key written
  out. A nested record has two: at its own key stands what it is when the whole map is missing, and at the keys below it, or
  where the link leads, what each of them is when it is missing in a map that is there. "its own" says that the two agree.
- **Names** of an enumeration are exact, misspellings included.
- **Compares:** what `==` looks at, besides the class id.
- **Empty:** when `IsEmpty` of the settings class is true; and of its record, where the two differ.

## All classes

| Class | Class id | Inputs | Registration |
|---|---|---|---|
)";

} // namespace

std::string PageText(const std::vector<ReferencePage>& pages, std::size_t page, const ReferenceSections& sections)
{
    const PageWriter writer(pages, sections, page);
    std::string text = WRITTEN_BY + ("# " + pages[page].title) + "\n\n[All pages, and how to read them](README.md)\n";
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
            rows.insert(Joined({"| ", Link(effectClass.className, page.name + ".md"), " | `", effectClass.classId, "` | ",
                                InputsOf(effectClass), " | ", RegistrationText(effectClass.registration), " |\n"}));
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
