#include "release/Rules.h"

#include "PropertyTreeJson/PropertyTreeJson.h"
#include "release/Samples.h"

#include <algorithm>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace Release
{
namespace
{

using Ombrel::PropertyTree;

const std::map<std::string, std::string> REASONS{
    {"class-removed", "files with it are no longer read"},
    {"class-renamed", "it is another class"},
    {"inputs-changed", "looks with it take another number of images"},
    {"registration-removed", "files with it are no longer read"},
    {"key-removed", "what files hold under it is lost"},
    {"kind-changed", "what files hold under it is refused or cut"},
    {"default-changed", "files without the key change their picture"},
    {"order-changed", "keys are read in this order, and later ones may change what earlier ones set"},
    {"compared-changed", "effects that were equal no longer are, or the other way round"},
    {"computed-changed", "the value is written otherwise than it was read"},
    {"always-written-changed", "what is written by default differs"},
    {"name-removed", "files with it read as the fallback"},
    {"number-changed", "the name means another value"},
    {"name-taken", "the table already has the name"},
    {"name-moved", "a number is written by another name"},
    {"fallback-changed", "files with unknown names change their picture"},
    {"numbers-not-taken", "files with a number are refused"},
    {"sample-changed", "a stored effect no longer means what it meant"},
};

std::string JsonOf(const PropertyTree& tree)
{
    return Ombrel::WriteJson(tree, {.nonFiniteAsText = true});
}

const PropertyTree* Member(const PropertyTree& map, const std::string& key)
{
    const auto found = map.getMap().find(key);
    return found == map.getMap().end() ? nullptr : &found->second;
}

// The element of a list whose text under a key is the given one.
const PropertyTree* Named(const PropertyTree& list, const char* key, const std::string& text)
{
    const auto found =
        std::ranges::find_if(list.getList(), [&](const PropertyTree& element) { return TextIn(element, key) == text; });
    return found == list.getList().end() ? nullptr : &*found;
}

class Comparer
{
public:
    Comparer(const PropertyTree& frozen, const PropertyTree& later) : m_frozen(frozen), m_later(later) {}

    Comparison Run()
    {
        for (const PropertyTree& frozen : m_frozen["classes"].getList())
        {
            const std::string id = TextIn(frozen, "id");
            const PropertyTree* const later = Named(m_later["classes"], "id", id);
            if (!later)
            {
                Add("class-removed", id, TextIn(frozen, "class"));
                continue;
            }
            CompareMembers("class-renamed", id, frozen, *later, "class");
            CompareMembers("inputs-changed", id, frozen, *later, "inputs");
            if (frozen["registered"] == PropertyTree(true) && !(later->operator[]("registered") == PropertyTree(true)))
            {
                Add("registration-removed", id, "registered -> not registered");
            }
            CompareFields(id, frozen["keys"], (*later)["keys"], 0);
        }
        AddNew("class", m_frozen["classes"], m_later["classes"], "id", "");
        return std::move(m_comparison);
    }

private:
    void Add(const char* rule, const std::string& place, std::string what)
    {
        m_comparison.breaks.push_back({rule, place, std::move(what)});
    }

    void CompareMembers(const char* rule, const std::string& place, const PropertyTree& frozen, const PropertyTree& later,
                        const char* key)
    {
        const PropertyTree* const before = Member(frozen, key);
        const PropertyTree* const after = Member(later, key);
        const auto shown = [](const PropertyTree* value) { return value ? JsonOf(*value) : std::string("not set"); };
        if (!(before && after ? *before == *after : !before && !after))
        {
            Add(rule, place, shown(before) + " -> " + shown(after));
        }
    }

    void AddNew(const char* what, const PropertyTree& frozen, const PropertyTree& later, const char* key,
                const std::string& place)
    {
        for (const PropertyTree& element : later.getList())
        {
            if (!Named(frozen, key, TextIn(element, key)))
            {
                m_comparison.additions.push_back(std::string(what) + " " + place + TextIn(element, key));
            }
        }
    }

    void CompareFields(const std::string& place, const PropertyTree& frozen, const PropertyTree& later, int depth)
    {
        std::vector<std::string> order; // of the old keys in the later list
        for (const PropertyTree& field : later.getList())
        {
            if (Named(frozen, "key", TextIn(field, "key")))
            {
                order.push_back(TextIn(field, "key"));
            }
        }
        std::vector<std::string> oldOrder;
        for (const PropertyTree& field : frozen.getList())
        {
            const std::string key = TextIn(field, "key");
            const std::string path = place + "/" + key;
            const PropertyTree* const now = Named(later, "key", key);
            if (!now)
            {
                Add("key-removed", path, "kind " + TextIn(field, "kind"));
                continue;
            }
            oldOrder.push_back(key);
            CompareDefaults(path, field["default"], (*now)["default"]);
            CompareMembers("compared-changed", path, field, *now, "compared");
            CompareMembers("computed-changed", path, field, *now, "computed");
            CompareMembers("always-written-changed", path, field, *now, "alwaysWritten");
            CompareValues(path, field, *now, depth);
        }
        if (order != oldOrder)
        {
            Add("order-changed", place, "the old keys are read in another order");
        }
        AddNew("key", frozen, later, "key", place + "/");
    }

    // Of a record, new keys are allowed.
    void CompareDefaults(const std::string& path, const PropertyTree& frozen, const PropertyTree& later)
    {
        if (frozen.isMap() && later.isMap())
        {
            for (const auto& [key, value] : frozen.getMap())
            {
                if (const PropertyTree* const now = Member(later, key))
                {
                    CompareDefaults(path + "/" + key, value, *now);
                }
            }
        }
        else if (!(frozen == later))
        {
            Add("default-changed", path, JsonOf(frozen) + " -> " + JsonOf(later));
        }
    }

    void CompareValues(const std::string& path, const PropertyTree& frozen, const PropertyTree& later, int depth)
    {
        if (TextIn(frozen, "kind") != TextIn(later, "kind"))
        {
            Add("kind-changed", path, TextIn(frozen, "kind") + " -> " + TextIn(later, "kind"));
            return;
        }
        if (frozen.contains("element"))
        {
            CompareValues(path + "/0", frozen["element"], later["element"], depth + 1);
        }
        if (frozen.contains("record") && depth < 8)
        {
            CompareFields(path, m_frozen["records"][TextIn(frozen, "record")], m_later["records"][TextIn(later, "record")],
                          depth + 1);
        }
        if (frozen.contains("names"))
        {
            CompareNames(path, frozen, later);
        }
    }

    void CompareNames(const std::string& path, const PropertyTree& frozen, const PropertyTree& later)
    {
        CompareMembers("fallback-changed", path, frozen, later, "fallback");
        if (frozen.contains("takesNumbers") && !later.contains("takesNumbers"))
        {
            Add("numbers-not-taken", path, "numbers -> no numbers");
        }
        for (const PropertyTree& row : frozen["names"].getList())
        {
            const std::string name = TextIn(row, "name");
            const PropertyTree* const now = Named(later["names"], "name", name);
            if (!now)
            {
                Add("name-removed", path, "\"" + name + "\"");
            }
            else if (!((*now)["number"] == row["number"]))
            {
                Add("number-changed", path, "\"" + name + "\" " + JsonOf(row["number"]) + " -> " + JsonOf((*now)["number"]));
            }
            else if (WrittenAs(frozen["names"], row["number"]) != WrittenAs(later["names"], row["number"]))
            {
                Add("name-moved", path,
                    JsonOf(row["number"]) + " is written as \"" + WrittenAs(later["names"], row["number"]) + "\"");
            }
        }
        const PropertyTree::List& names = later["names"].getList();
        for (auto row = names.begin(); row != names.end(); ++row)
        {
            const auto isSame = [row](const PropertyTree& other) { return other["name"] == (*row)["name"]; };
            const auto count = [&](const PropertyTree::List& list) { return std::ranges::count_if(list, isSame); };
            if (std::find_if(names.begin(), row, isSame) != row && count(names) > count(frozen["names"].getList()))
            {
                Add("name-taken", path, "\"" + TextIn(*row, "name") + "\"");
            }
        }
        AddNew("name", frozen["names"], later["names"], "name", path + " ");
    }

    static std::string WrittenAs(const PropertyTree& names, const PropertyTree& number)
    {
        const auto row =
            std::ranges::find_if(names.getList(), [&](const PropertyTree& other) { return other["number"] == number; });
        return TextIn(*row, "name");
    }

    const PropertyTree& m_frozen;
    const PropertyTree& m_later;
    Comparison m_comparison;
};

// Where a later value differs, but for keys that are new.
void FindDifferences(const std::string& place, const std::string& sample, const PropertyTree& expected,
                     const PropertyTree& found, std::vector<Break>& differences)
{
    if (expected.isMap() && found.isMap())
    {
        for (const auto& [key, value] : expected.getMap())
        {
            const PropertyTree* const now = Member(found, std::string(key));
            FindDifferences(place + "/" + key, sample, value, now ? *now : PropertyTree(), differences);
        }
        return;
    }
    if (expected.isList() && found.isList() && expected.getList().size() == found.getList().size())
    {
        for (std::size_t index = 0; index != expected.getList().size(); ++index)
        {
            FindDifferences(place + "/" + std::to_string(index), sample, expected.getList()[index], found.getList()[index],
                            differences);
        }
        return;
    }
    if (!(expected == found))
    {
        differences.push_back({"sample-changed", place, sample + ": " + JsonOf(expected) + " -> " + JsonOf(found)});
    }
}

// The same for what is written, which may hold no more than it did.
void FindWrittenDifferences(const std::string& place, const std::string& sample, const PropertyTree& expected,
                            const PropertyTree& found, std::vector<Break>& differences)
{
    if (!expected.isMap() || !found.isMap())
    {
        if (!(expected == found))
        {
            differences.push_back(
                {"sample-changed", place, sample + ", written: " + JsonOf(expected) + " -> " + JsonOf(found)});
        }
        return;
    }
    std::map<std::string, std::pair<PropertyTree, PropertyTree>> keys;
    for (const auto& [key, value] : expected.getMap())
    {
        keys[std::string(key)].first = value;
    }
    for (const auto& [key, value] : found.getMap())
    {
        keys[std::string(key)].second = value;
    }
    for (const auto& [key, values] : keys)
    {
        FindWrittenDifferences(place + "/" + key, sample, values.first, values.second, differences);
    }
}

} // namespace

std::string Break::Id() const
{
    return rule + " " + place + ": " + what;
}

std::string Break::Text() const
{
    return Id() + " (" + REASONS.at(rule) + ")";
}

Comparison Compare(const PropertyTree& frozen, const PropertyTree& later)
{
    return Comparer(frozen, later).Run();
}

std::vector<Break> CompareOutcomes(const std::string& classId, const std::string& sample, const PropertyTree& expected,
                                   const PropertyTree& found)
{
    std::vector<Break> breaks;
    const PropertyTree* const wasRefused = Member(expected, "refused");
    const PropertyTree* const isRefused = Member(found, "refused");
    if (wasRefused || isRefused)
    {
        if (!wasRefused) // what was refused may be read later
        {
            breaks.push_back({"sample-changed", classId, sample + ": read -> " + JsonOf(*isRefused)});
        }
        return breaks;
    }
    FindDifferences(classId, sample, expected["full"], found["full"], breaks);
    FindWrittenDifferences(classId, sample, expected["written"], found["written"], breaks);
    if (!(expected["empty"] == found["empty"]))
    {
        breaks.push_back(
            {"sample-changed", classId,
             sample + ", IsEmpty of effect and record: " + JsonOf(expected["empty"]) + " -> " + JsonOf(found["empty"])});
    }
    return breaks;
}

WantedBreaks::WantedBreaks(const std::string& text)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
    {
        if (!line.starts_with("- `"))
        {
            continue;
        }
        const std::size_t end = line.rfind('`');
        if (end < 4 || line.find_first_not_of(' ', end + 1) == std::string::npos)
        {
            throw std::runtime_error("a break without a reason: " + line);
        }
        m_lines.push_back({line.substr(3, end - 3)});
    }
}

bool WantedBreaks::IsWanted(const std::string& release, const Break& change)
{
    bool isWanted = false;
    for (Line& line : m_lines)
    {
        const bool isOfPlace = change.rule == "sample-changed" && line.id.starts_with(release + " ") &&
                               (line.id.find(" " + change.place + ": ") != std::string::npos ||
                                line.id.find(" " + change.place + "/") != std::string::npos);
        if (line.id == release + " " + change.Id())
        {
            line.isUsed = true;
            isWanted = true;
        }
        isWanted = isWanted || isOfPlace;
    }
    return isWanted;
}

std::vector<std::string> WantedBreaks::Unused() const
{
    std::vector<std::string> unused;
    for (const Line& line : m_lines)
    {
        if (!line.isUsed)
        {
            unused.push_back(line.id);
        }
    }
    return unused;
}

} // namespace Release
