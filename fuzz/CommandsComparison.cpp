#include "CommandsComparison.h"

#include "CheckCommand.h"
#include "Document.h"
#include "FormCommands.h"
#include "Fuzz.h"
#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "ShowCommand.h"
#include "ToolError.h"
#include "ValueCommands.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Fuzz
{
namespace
{

using namespace Ombrel;
using EffectsTool::Document;
using EffectsTool::ExitCode;
using EffectsTool::Report;
using Steps = std::vector<std::string>;
using StepsView = std::span<const std::string>;
using Inspection::Severity;

constexpr EffectsTool::ReadingOptions READING{.nonFinite = true};
const std::string FILE_NAME = "effects.json";

std::string TextOf(const PropertyTree& tree)
{
    return WriteJson(tree, {.nonFiniteAsText = true});
}

PropertyTree TreeOf(const std::string& text)
{
    return ReadJson(text, {.nonFiniteAsText = true});
}

// Whether nothing differs but at the place, around it and below it.
bool AreOthersSame(const PropertyTree& before, const PropertyTree& after, StepsView place)
{
    if (place.empty())
    {
        return true;
    }
    if (before.isMap() && after.isMap())
    {
        const auto isKept = [&](const auto& entry)
        {
            const auto& [key, child] = entry;
            const auto found = after.getMap().find(key);
            return found != after.getMap().end() &&
                   (key == place.front() ? AreOthersSame(child, found->second, place.subspan(1))
                                         : AreSameByValue(child, found->second));
        };
        const auto isNoOther = [&](const auto& entry) { return entry.first == place.front() || before.contains(entry.first); };
        return std::ranges::all_of(before.getMap(),
                                   [&](const auto& entry) {
                                       return (entry.first == place.front() && !after.contains(entry.first)) || isKept(entry);
                                   }) &&
               std::ranges::all_of(after.getMap(), isNoOther);
    }
    if (before.isList() && after.isList() && before.getList().size() == after.getList().size())
    {
        for (std::size_t index = 0; index != before.getList().size(); ++index)
        {
            const PropertyTree& one = before.getList()[index];
            const PropertyTree& other = after.getList()[index];
            const bool isOnTheWay = std::to_string(index) == place.front();
            if (isOnTheWay ? !AreOthersSame(one, other, place.subspan(1)) : !AreSameByValue(one, other))
            {
                return false;
            }
        }
        return true;
    }
    return AreSameByValue(before, after);
}

const PropertyTree* Find(const PropertyTree& tree, StepsView place)
{
    const PropertyTree* value = &tree;
    for (const std::string& step : place)
    {
        if (value->isMap() && value->contains(step))
        {
            value = &(*value)[step];
        }
        else if (value->isList() && std::ranges::all_of(step, [](char c) { return c >= '0' && c <= '9'; }) && !step.empty() &&
                 step.size() < 7 && std::stoul(step) < value->getList().size())
        {
            value = &value->getList()[std::stoul(step)];
        }
        else
        {
            return nullptr;
        }
    }
    return value;
}

// Every value as it is read. Nothing if there is something that no read takes.
std::optional<PropertyTree> Read(const PropertyTree& tree)
{
    for (const Inspection::Finding& finding : Inspection::Check(tree))
    {
        if (SeverityOf(finding.code) == Severity::Error)
        {
            return std::nullopt;
        }
    }
    return Inspection::Freeze(Inspection::Normalise(tree));
}

// A value is read as it was given: a map has at least the keys, and a list that is a set may have another order.
bool IsReadAs(const PropertyTree& given, const PropertyTree& read)
{
    if (given.isMap() && read.isMap())
    {
        return std::ranges::all_of(given.getMap(), [&read](const auto& entry)
                                   { return read.contains(entry.first) && IsReadAs(entry.second, read[entry.first]); });
    }
    if (given.isList() && read.isList())
    {
        const PropertyTree::List& list = read.getList();
        return given.getList().size() >= list.size() &&
               (std::ranges::equal(given.getList(), list, &IsReadAs) ||
                std::ranges::all_of(given.getList(),
                                    [&list](const PropertyTree& element) {
                                        return std::ranges::any_of(list, [&element](const PropertyTree& other)
                                                                   { return IsReadAs(element, other); });
                                    }));
    }
    return AreSameByValue(given, read);
}

std::string Described(const PropertyTree& tree, StepsView place, const std::string& value, const Report& report)
{
    std::string text = TextOf(tree) + "\nat";
    for (const std::string& step : place)
    {
        text += " " + step;
    }
    text += "\nvalue " + value + "\nbecomes " + report.document.value_or("nothing");
    for (const std::string& complaint : report.complaints)
    {
        text += "\n" + complaint;
    }
    return text;
}

// Runs a command; nothing if it refuses.
template <class Command> std::optional<Report> Run(const Command& command)
{
    try
    {
        return command();
    }
    catch (const EffectsTool::ToolError&)
    {
        return std::nullopt;
    }
}

// What holds for `set` and `unset`.
void CompareChange(const PropertyTree& tree, const Steps& place, const std::string& value, const Report& report, bool isSet)
{
    const std::string text = Described(tree, place, value, report);
    Require(report.document.has_value(), "no document", text);
    const PropertyTree after = TreeOf(*report.document);
    const std::size_t start = tree.isList() ? 1 : 0; // where the place in the effect begins
    Require(AreOthersSame(tree, after, StepsView(place).first(start + 1)), "another key is stored otherwise", text);
    if (report.code != ExitCode::Fine)
    {
        Require(!report.complaints.empty(), "no word of what is lost", text);
        return;
    }
    const std::optional<PropertyTree> readBefore = Read(tree);
    const std::optional<PropertyTree> readAfter = Read(after);
    Require(!readBefore || readAfter, "the file cannot be read any more", text);
    if (readBefore && readAfter)
    {
        Require(AreOthersSame(*readBefore, *readAfter, place), "another value is read otherwise",
                text + "\nread before " + TextOf(*readBefore) + "\nread after " + TextOf(*readAfter));
    }
    if (isSet && readAfter)
    {
        const PropertyTree* read = Find(*readAfter, place);
        const std::optional<Report> got =
            Run([&] { return GetValue(Document(FILE_NAME, *report.document, READING), place, false); });
        Require(read && got && AreSameByValue(TreeOf(got->out), *read), "get says something else", text);
        const PropertyTree asText(value);
        Require(AreSameByValue(asText, *read) || IsReadAs(TreeOf(value), *read), "the value is not read as it was given",
                text + "\nread " + TextOf(*read));
    }
    Require(isSet || !Find(after, place), "the key is still there", text);
}

// A place at which a value stands when it is read, or now and then another one.
Steps PickPlace(const PropertyTree& tree, Mutation& mutation)
{
    Steps place;
    const PropertyTree frozen = Inspection::Freeze(mutation.IsOneIn(2) ? tree : Inspection::Normalise(tree));
    const PropertyTree* value = &frozen;
    while (!mutation.IsOneIn(8))
    {
        if (mutation.IsOneIn(30))
        {
            place.emplace_back(mutation.IsOneIn(2) ? "0" : "effectRows");
        }
        if (value->isMap() && !value->getMap().empty())
        {
            const auto entry =
                std::next(value->getMap().begin(), static_cast<std::ptrdiff_t>(mutation.Below(value->getMap().size())));
            place.push_back(entry->first);
            value = &entry->second;
        }
        else if (value->isList() && !value->getList().empty())
        {
            const std::size_t index = mutation.Below(value->getList().size());
            place.push_back(std::to_string(index));
            value = &value->getList()[index];
        }
        else
        {
            break;
        }
    }
    if (place.empty())
    {
        place.emplace_back("implName");
    }
    return place;
}

// What stands at another place of the tree as a rule, so that its kind may fit.
std::string PickValue(const PropertyTree& tree, const Steps& place, Mutation& mutation)
{
    constexpr const char* VALUES[] = {"0",          "1",
                                      "-1",         "0.5",
                                      "3.0",        "1e300",
                                      "540",        "300",
                                      "true",       "false",
                                      "null",       "\"\"",
                                      "{}",         "[]",
                                      "[1]",        "text",
                                      "Red",        "ff0000ff",
                                      "NaN",        "\"NaN\"",
                                      "[null]",     "[[{}]]",
                                      "[0, 0]",     "{\"x\":1}",
                                      "4294967295", "18446744073709551615"};
    if (mutation.IsOneIn(2))
    {
        return VALUES[mutation.Below(std::size(VALUES))];
    }
    const PropertyTree frozen = Inspection::Freeze(tree);
    const PropertyTree* value = Find(frozen, mutation.IsOneIn(2) ? place : PickPlace(tree, mutation));
    return value ? TextOf(*value) : "1";
}

void CompareForm(const PropertyTree& tree, Report (*command)(const Document&), const char* name)
{
    const std::optional<Report> report = Run([&] { return command(Document(FILE_NAME, TextOf(tree), READING)); });
    if (!report)
    {
        return;
    }
    const std::string text = std::string(name) + "\n" + Described(tree, {}, "", *report);
    Require(report->document.has_value(), "no document", text);
    const PropertyTree after = TreeOf(*report->document);
    if (report->code != ExitCode::Fine)
    {
        Require(!report->complaints.empty(), "no word of what is lost", text);
        return;
    }
    const std::optional<PropertyTree> readBefore = Read(tree);
    const std::optional<PropertyTree> readAfter = Read(after);
    Require(readBefore.has_value() == readAfter.has_value(), "one of both forms cannot be read", text);
    Require(!readBefore || AreSameByValue(*readBefore, *readAfter), "a value is read otherwise", text);
}

} // namespace

void CompareCommands(const PropertyTree& tree, Mutation& mutation)
{
    std::string file;
    try
    {
        file = TextOf(tree);
        if (!AreSameByValue(TreeOf(file), tree))
        {
            return;
        }
    }
    catch (const JsonWriteError&)
    {
        return; // a text that is not UTF-8, which no file holds
    }
    const Document document(FILE_NAME, file, READING);
    const Steps place = PickPlace(tree, mutation);
    const std::string value = PickValue(tree, place, mutation);
    if (const auto report = Run([&] { return SetValue(document, place, value); }))
    {
        CompareChange(tree, place, value, *report, true);
    }
    if (const auto report = Run([&] { return UnsetValue(document, place); }))
    {
        CompareChange(tree, place, "unset", *report, false);
    }
    if (const auto report = Run([&] { return GetValue(document, place, true); }))
    {
        Require(Find(tree, place) && AreSameByValue(TreeOf(report->out), *Find(tree, place)), "get --raw",
                file + "\n" + report->out);
    }
    CompareForm(tree, &EffectsTool::ThinDocument, "thin");
    CompareForm(tree, &EffectsTool::FreezeDocument, "freeze");
    CompareForm(tree, &EffectsTool::NormaliseDocument, "normalise");

    EffectsTool::CheckSettings settings;
    CheckDocument(document, settings);
    settings.isFixing = true;
    const Report fixed = CheckDocument(document, settings);
    const PropertyTree mended = Inspection::Mended(tree, Inspection::Check(tree));
    Require(fixed.document && AreSameByValue(TreeOf(*fixed.document), mended), "check --fix", file);
    Run([&] { return ShowDocument(document, false); });
    Run([&] { return ShowAsJson(document); });
}

} // namespace Fuzz
