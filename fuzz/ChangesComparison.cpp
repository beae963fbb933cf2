#include "ChangesComparison.h"

#include "Fuzz.h"
#include "Inspection/Changes.h"
#include "Inspection/Forms.h"
#include "Inspection/JsonPatch.h"
#include "Inspection/Merge.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTreeOutput.h"
#include "StoredEffects.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace Fuzz
{
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

std::string TextOf(const PropertyTree& tree)
{
    std::ostringstream out;
    out << tree;
    return out.str();
}

constexpr Proc::ValueSchema EFFECT{Proc::ValueKind::Effect};
constexpr Proc::ValueSchema HELPER_SETTINGS{.kind = Proc::ValueKind::Record, .record = &PhotoCore::HelperSettings::Schema};

// What is known of a key in a map, or null.
const Proc::ValueSchema* SchemaOf(const PropertyTree& map, std::string_view key, const Proc::ValueSchema* schema)
{
    const Proc::RecordSchema* record = schema && schema->kind == Proc::ValueKind::Record ? &schema->record() : nullptr;
    if (schema && schema->kind == Proc::ValueKind::Effect)
    {
        const PhotoCore::EffectClass* const effectClass = ClassOf(map);
        const bool isKnown = effectClass && effectClass->registration != PhotoCore::Registration::None;
        if (isKnown && key == "helperSettings")
        {
            return &HELPER_SETTINGS;
        }
        record = isKnown ? effectClass->getSchema() : nullptr;
    }
    const auto field = record ? Proc::FindField(*record, key) : std::nullopt;
    return field ? record->fields[*field].value : nullptr;
}

// Whether a value may be an element of a set or a map of colours, whose order does not count.
bool IsFlat(const PropertyTree& element)
{
    const auto isNoContainer = [](const auto& entry) { return !entry.second.isMap() && !entry.second.isList(); };
    return element.isMap() ? std::ranges::all_of(element.getMap(), isNoContainer) : !element.isList();
}

// Numbers by value as texts, and the elements of sets and maps of colours in one order.
PropertyTree Meaning(PropertyTree tree, const Proc::ValueSchema* schema)
{
    if (tree.isScalar() && tree.getScalar().kind() == PropertyTreeScalar::Kind::Float)
    {
        const double number = tree.getScalar().toDouble();
        const bool isInteger = std::fabs(number) < 9e15 && std::floor(number) == number;
        return isInteger ? PropertyTree(static_cast<std::int64_t>(number)) : PropertyTree("float " + TextOf(tree));
    }
    if (tree.isList())
    {
        for (PropertyTree& element : tree.getList())
        {
            element = Meaning(std::move(element), schema ? schema->element : nullptr);
        }
        const bool isSet = schema && (schema->kind == Proc::ValueKind::Set || schema->kind == Proc::ValueKind::ColorMap);
        if (isSet && std::ranges::all_of(tree.getList(), &IsFlat))
        {
            std::ranges::sort(tree.getList(), {}, &TextOf);
        }
    }
    else if (tree.isMap())
    {
        for (auto& [key, child] : tree.getMap())
        {
            const Proc::ValueSchema* const known = SchemaOf(tree, key, schema);
            child = Meaning(std::move(child), known);
        }
    }
    return tree;
}

PropertyTree FullMeaning(const PropertyTree& tree)
{
    constexpr Proc::ValueSchema effects{.kind = Proc::ValueKind::List, .element = &EFFECT};
    return Meaning(Freeze(tree), tree.isList() ? &effects : &EFFECT);
}

std::string Described(const PropertyTree& before, const PropertyTree& after, const ChangeList& changes)
{
    std::string text = "before " + TextOf(before) + "\nafter  " + TextOf(after);
    for (const Change& change : changes)
    {
        text += "\n" + Inspection::TextOf(change);
    }
    return text + "\n" + TextOf(ToJsonPatch(changes));
}

// The tree after the changes, and nothing on its way may be missing.
PropertyTree Applied(const ChangeList& changes, PropertyTree tree, std::string_view what, const std::string& text)
{
    try
    {
        Apply(changes, tree);
    }
    catch (const ConflictError& conflict)
    {
        Require(false, what, text + "\n" + conflict.what() + "\nto " + TextOf(tree));
    }
    return tree;
}

PropertyTree Patched(const ChangeList& changes, PropertyTree tree, std::string_view what, const std::string& text)
{
    try
    {
        ApplyJsonPatch(ToJsonPatch(changes), tree);
    }
    catch (const JsonPatchError& error)
    {
        Require(false, what, text + "\n" + error.what() + "\nto " + TextOf(tree));
    }
    return tree;
}

} // namespace

void CompareChanges(const PropertyTree& before, const PropertyTree& after)
{
    const ChangeList changes = Diff(before, after);
    const std::string text = Described(before, after, changes);
    const std::string full = TextOf(FullMeaning(after));
    const auto isAfter = [&full](const PropertyTree& tree) { return TextOf(FullMeaning(tree)) == full; };

    Require(changes.empty() == isAfter(before), "there are changes if and only if something differs", text);
    const PropertyTree changed = Applied(changes, before, "the changes do not apply", text);
    Require(isAfter(changed), "the changes make another tree", text + "\nmade " + TextOf(changed));
    const ChangeList inverse = Inverse(changes);
    RequireSame(before, Applied(inverse, changed, "the inverse does not apply", text),
                "the inverse makes another tree: " + text);

    RequireSame(changed, Patched(changes, before, "the patch does not apply", text), "the patch makes another tree: " + text);
    RequireSame(before, Patched(inverse, changed, "the inverse patch does not apply", text),
                "the inverse patch makes another tree: " + text);

    // They are changes of the meaning, however it is stored.
    Require(isAfter(Applied(changes, Thin(before), "the changes do not apply to the thin form", text)),
            "the changes make another tree of the thin form", text);
    Require(isAfter(Applied(changes, Freeze(before), "the changes do not apply to the whole form", text)),
            "the changes make another tree of the whole form", text);

    // There and back, and there again.
    const ChangeList joined = Joined(Joined(changes, inverse), changes);
    Require(isAfter(Applied(joined, before, "the joined changes do not apply", text)), "the joined changes make another tree",
            text);
    Require(joined.size() <= 3 * changes.size(), "joining makes more changes", text);
}

void CompareMerge(const PropertyTree& base, const PropertyTree& ours, const PropertyTree& theirs)
{
    const std::string text = "base " + TextOf(base) + "\nours " + TextOf(ours) + "\ntheirs " + TextOf(theirs);
    const auto requireMerged = [&text](const MergeResult& result, const PropertyTree& expected, std::string_view what)
    {
        Require(result.conflicts.empty() && TextOf(FullMeaning(result.merged)) == TextOf(FullMeaning(expected)), what,
                text + "\nmerged " + TextOf(result.merged));
    };
    requireMerged(Merge(base, base, theirs), theirs, "what theirs has changed is not taken");
    requireMerged(Merge(base, ours, ours), ours, "the same changes are not taken");
    const MergeResult unchanged = Merge(base, ours, base);
    requireMerged(unchanged, ours, "what ours has changed is not kept");
    RequireSame(ours, unchanged.merged, "ours is stored otherwise");

    const MergeResult result = Merge(base, ours, theirs);
    const MergeResult turned = Merge(base, theirs, ours);
    Require(result.conflicts.empty() == turned.conflicts.empty(), "one side has a conflict and the other has none", text);
    const std::string merged = text + "\nmerged " + TextOf(result.merged);
    for (const MergeConflict& conflict : result.conflicts)
    {
        Require(conflict.ours.has_value() || conflict.theirs.has_value() || conflict.base.has_value(), "an empty conflict",
                merged);
    }
}

} // namespace Fuzz
