#include "ChangeCommands.h"

#include "FindingText.h"
#include "Inputs.h"
#include "Inspection/Changes.h"
#include "Inspection/Check.h"
#include "Inspection/JsonPatch.h"
#include "Inspection/Merge.h"
#include "Inspection/Nearest.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyTreeJson/MessageText.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "Reading.h"
#include "System.h"
#include "Values.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace Ombrel::EffectsTool
{
namespace
{

namespace fs = std::filesystem;

constexpr std::size_t MOST_COPIED = 2'000'000; // values, by the operations of one patch

bool IsFolder(const std::string& name)
{
    std::error_code error;
    return name != "-" && fs::is_directory(System::PathOf(name), error);
}

// The files of a folder by their names below it.
std::map<std::string, std::string> FilesBelow(const std::string& folder, Report& report)
{
    std::map<std::string, std::string> files;
    for (const std::string& file : FilesOf({folder}, report.complaints))
    {
        files.emplace(System::NameOf(System::PathOf(file).lexically_relative(System::PathOf(folder))), file);
    }
    return files;
}

// A line for each change.
void AddLines(const Inspection::ChangeList& changes, const std::string& start, Report& report)
{
    for (std::size_t index = 0; index < std::min(changes.size(), MOST_SHOWN); ++index)
    {
        report.out += start + MessageText::Printable(TextOf(changes[index])) + "\n";
    }
    if (changes.size() > MOST_SHOWN)
    {
        report.out += start + std::to_string(changes.size() - MOST_SHOWN) + " more changes\n";
    }
    report.Raise(changes.empty() ? ExitCode::Fine : ExitCode::Findings);
}

// The patch from one tree to the other. In effects that stand deep in others the paths of many changes would make a patch of
// gigabytes, so there it is one of the whole.
PropertyTree PatchOf(const Inspection::ChangeList& changes, const PropertyTree& before, const PropertyTree& after)
{
    constexpr std::size_t most = 2'000'000;
    std::size_t steps = 0;
    for (const Inspection::Change& change : changes)
    {
        steps += CountSteps(change.path);
    }
    if (steps <= most)
    {
        return ToJsonPatch(changes);
    }
    Inspection::Change whole;
    whole.stored.before = before;
    whole.stored.after = after;
    return Inspection::ToJsonPatch(std::span(&whole, 1));
}

Report CompareFolders(const std::string& before, const std::string& after, const ReadingOptions& options)
{
    Report report;
    const std::map<std::string, std::string> one = FilesBelow(before, report);
    const std::map<std::string, std::string> other = FilesBelow(after, report);
    if (!report.complaints.empty())
    {
        report.Raise(ExitCode::File);
    }
    std::map<std::string, std::pair<const std::string*, const std::string*>> pairs;
    std::ranges::for_each(one, [&pairs](const auto& file) { pairs[file.first].first = &file.second; });
    std::ranges::for_each(other, [&pairs](const auto& file) { pairs[file.first].second = &file.second; });
    for (const auto& [name, files] : pairs)
    {
        const std::string start = MessageText::Printable(name) + ": ";
        if (!files.first || !files.second)
        {
            report.out += start + "only in " + MessageText::Printable(files.first ? before : after) + "\n";
            report.Raise(ExitCode::Findings);
            continue;
        }
        try
        {
            AddLines(
                Inspection::Diff(Document::Load(*files.first, options).Tree(), Document::Load(*files.second, options).Tree()),
                start, report);
        }
        catch (const ToolError& error)
        {
            report.Complain(error.code(), error.what());
        }
    }
    return report;
}

std::string ShownSide(const std::optional<PropertyTree>& value)
{
    return value ? ShownInBrief(*value) : "nothing";
}

[[noreturn]] void Refuse(const Document& document, PathView path, const std::string& reason)
{
    throw ToolError(ExitCode::Usage, document.Name() + ": " + PathText(path) + ": " + reason);
}

// The list in which the path ends, and the index.
PropertyTree::List& ListAt(const Document& document, PropertyTree& tree, PathView path)
{
    PropertyTree* list = Find(tree, path.first(path.size() - 1));
    if (!list)
    {
        Refuse(document, path, "there is no such list");
    }
    if (!list->isList())
    {
        Refuse(document, path, std::string("expected an element of a list, found a value in ") + KindOf(*list));
    }
    return list->getList();
}

std::size_t IndexAt(const Document& document, const PropertyTree::List& list, PathView path, bool isNew)
{
    const std::optional<std::size_t> index = isNew && path.back() == "-" ? list.size() : IndexOf(path.back());
    const std::size_t count = list.size() + (isNew ? 1 : 0); // of the indices that there are
    if (!index || *index >= count)
    {
        Refuse(document, path,
               count == 0 ? "the list is empty"
                          : "no such element, expected an index from 0 to " + std::to_string(count - 1) +
                                (isNew ? ", or - for the end" : ""));
    }
    return *index;
}

PropertyTree ElementOf(const Document& document, const Path& path, const std::string& text)
{
    PropertyTree effect;
    effect[std::string(Proc::StoredKeys::NAME)] = text;
    if (PhotoCore::FindEffectClass(text))
    {
        return effect;
    }
    try
    {
        return ReadJson(text, {.nonFiniteAsText = document.Options().nonFinite});
    }
    catch (const JsonError& error)
    {
        Inspection::NearestName nearest(text);
        std::ranges::for_each(PhotoCore::RegisteredClassIds(), [&nearest](const std::string& id) { nearest.Try(id); });
        Refuse(document, path,
               "neither a class id nor JSON: " + MessageText::Printable(error.what()) +
                   (nearest.Get().empty() ? "" : "; did you mean " + nearest.Get() + "?"));
    }
}

// Refuses what no read takes at the place, and so does not see there.
void RequireReadable(const Document& document, const PropertyTree& changed, PathView place)
{
    for (const Inspection::Finding& finding : Inspection::Check(changed))
    {
        if (SeverityOf(finding.code) == Inspection::Severity::Error && !IsOfUnknownEffect(finding) &&
            StartsWith(finding.path, place))
        {
            Refuse(document, StepsOf(finding.path), MessageOf(finding));
        }
    }
}

} // namespace

Report CompareFiles(const std::string& before, const std::string& after, const ReadingOptions& options, bool isJson)
{
    if (IsFolder(before) != IsFolder(after))
    {
        throw ToolError(ExitCode::Usage, "a file and a folder cannot be compared");
    }
    if (IsFolder(before))
    {
        if (isJson)
        {
            throw ToolError(ExitCode::Usage, "--json compares two files, not folders");
        }
        return CompareFolders(before, after, options);
    }
    const Document one = Document::Load(before, options);
    const Document other = Document::Load(after, options);
    Report report;
    const Inspection::ChangeList changes = Inspection::Diff(one.Tree(), other.Tree());
    if (isJson)
    {
        report.out = Indented(PatchOf(changes, one.Tree(), other.Tree()), one.Name() + ": the patch", options.nonFinite);
        report.Raise(changes.empty() ? ExitCode::Fine : ExitCode::Findings);
        return report;
    }
    AddLines(changes, "", report);
    return report;
}

Report PatchDocument(const Document& document, const Document& patch)
{
    if (!patch.IsList())
    {
        throw ToolError(ExitCode::BadInput, patch.Name() + ": a patch is a list of operations");
    }
    Report report;
    PropertyTree tree = document.Tree();
    try
    {
        Inspection::ApplyJsonPatch(patch.Tree(), tree, {.maxCopied = MOST_COPIED});
    }
    catch (const Inspection::JsonPatchError& error)
    {
        report.Complain(ExitCode::Findings, patch.Name() + ": " + MessageText::Printable(error.what()));
        return report;
    }
    report.SetDocument(document, tree);
    return report;
}

Report MergeDocuments(const Document& ours, const Document& base, const Document& theirs)
{
    Report report;
    const Inspection::MergeResult result = Inspection::Merge(base.Tree(), ours.Tree(), theirs.Tree());
    report.SetDocument(ours, result.merged);
    for (const Inspection::MergeConflict& conflict : result.conflicts)
    {
        const std::string path = MessageText::Printable(conflict.path.ToText());
        report.Complain(ExitCode::Findings, ours.Name() + ": " + path + (path.empty() ? "" : ": ") + "conflict: base " +
                                                ShownSide(conflict.base) + ", ours " + ShownSide(conflict.ours) + ", theirs " +
                                                ShownSide(conflict.theirs));
    }
    return report;
}

Report InsertElement(const Document& document, const Path& path, const std::string& text)
{
    PropertyTree tree = document.Tree();
    PropertyTree::List& list = ListAt(document, tree, path);
    const std::size_t index = IndexAt(document, list, path, true);
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(index), ElementOf(document, path, text));
    Path place = path;
    place.back() = std::to_string(index);
    RequireReadable(document, tree, place);
    Report report;
    report.SetDocument(document, tree);
    return report;
}

Report RemoveElement(const Document& document, const Path& path)
{
    PropertyTree tree = document.Tree();
    PropertyTree::List& list = ListAt(document, tree, path);
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(IndexAt(document, list, path, false)));
    Report report;
    report.SetDocument(document, tree);
    return report;
}

Report MoveElement(const Document& document, const Path& from, const Path& to)
{
    PropertyTree tree = document.Tree();
    PropertyTree::List& source = ListAt(document, tree, from);
    const auto place = source.begin() + static_cast<std::ptrdiff_t>(IndexAt(document, source, from, false));
    PropertyTree element = std::move(*place);
    source.erase(place);
    PropertyTree::List& target = ListAt(document, tree, to);
    const std::size_t index = IndexAt(document, target, to, true);
    target.insert(target.begin() + static_cast<std::ptrdiff_t>(index), std::move(element));
    Path moved = to;
    moved.back() = std::to_string(index);
    RequireReadable(document, tree, moved);
    Report report;
    report.SetDocument(document, tree);
    return report;
}

} // namespace Ombrel::EffectsTool
