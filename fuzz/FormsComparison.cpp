#include "FormsComparison.h"

#include "Fuzz.h"
#include "StoredEffects.h"

#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTreeOutput.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
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
using PhotoCore::EffectSettings;
using PhotoCore::IEffectSettings;
using Kind = PropertyTreeScalar::Kind;

std::string TextOf(const PropertyTree& tree)
{
    std::ostringstream text;
    text << tree;
    return text.str();
}

std::vector<PropertyTree> EffectsOf(const PropertyTree& tree)
{
    return tree.isList() ? tree.getList() : std::vector{tree};
}

void RequireSame(const PropertyTree& one, const PropertyTree& other, std::string_view what, const PropertyTree& tree)
{
    Require(AreSameByValue(one, other), what, TextOf(tree) + "\nfirst:  " + TextOf(one) + "\nsecond: " + TextOf(other));
}

// What a read gives: the effect, or the type and text of the failure.
struct Reading
{
    explicit Reading(const PropertyTree& tree) : failure(FailureOf([&] { EffectSettings::DeserializePtr(tree, effect); }))
    {
        if (!failure)
        {
            EffectSettings::SerializePtr(written, effect);
        }
    }

    std::shared_ptr<IEffectSettings> effect;
    std::optional<std::string> failure;
    PropertyTree written;
};

bool AreEqual(const Reading& a, const Reading& b)
{
    return a.effect && b.effect ? *a.effect == *b.effect : !a.effect && !b.effect;
}

// Some effects are not even equal to what the same tree gives once more: those with a NaN, and simple ones.
void RequireReadAlike(const PropertyTree& tree, const PropertyTree& form, std::string_view what)
{
    const Reading given(tree);
    const Reading read(form);
    const std::string text = TextOf(tree) + "\nform: " + TextOf(form);
    Require(given.failure == read.failure, what,
            text + "\nfailure: " + given.failure.value_or("none") + " / " + read.failure.value_or("none"));
    if (!given.failure)
    {
        RequireSame(given.written, read.written, what, tree);
        Require(!AreEqual(given, Reading(tree)) || (AreEqual(given, read) && AreEqual(read, given)), what, text);
    }
}

// Whether a value may be written otherwise than it was read, beyond what a finding about its kind says. One that is to be taken
// out is not written: it, or what is computed from it, is the default.
bool MayBeComputed(const Finding& finding)
{
    const PropertyTree& becomes = finding.becomes;
    const bool isOut = finding.mend == Mend::Remove;
    switch (finding.code)
    {
    case FindingCode::ChangesOnWrite:
    case FindingCode::LostByCopy:
        return true;
    case FindingCode::CutInteger:
    case FindingCode::TruncatedFloat:
    {
        const std::int64_t read = finding.found.getScalar().toInt();
        return isOut || (!AreSameByValue(becomes, read) && !AreSameByValue(becomes, static_cast<std::int32_t>(read)) &&
                         !AreSameByValue(becomes, static_cast<std::uint32_t>(read)) &&
                         !AreSameByValue(becomes, static_cast<std::uint8_t>(read)));
    }
    case FindingCode::NarrowedFloat:
    {
        const double read = finding.found.getScalar().toDouble();
        return isOut || (!AreSameByValue(becomes, read) && !AreSameByValue(becomes, static_cast<float>(read)));
    }
    case FindingCode::NumberForName:
        return AreSameByValue(becomes, ""); // which is read as the fallback
    default:
        return false;
    }
}

// What is found that no form changes.
std::string LastingFindings(const PropertyTree& tree)
{
    std::string lines;
    for (const Finding& finding : Check(tree))
    {
        if (finding.code != FindingCode::DefaultWritten && finding.code != FindingCode::ChangesOnWrite &&
            finding.code != FindingCode::NullEffect)
        {
            const bool isValue = finding.code != FindingCode::Refused && !finding.path.Steps().empty();
            lines += std::string(Inspection::TextOf(finding.code)) + " at " + finding.path.ToText() + ": " +
                     (isValue ? TextOf(finding.found) : "") + '\n';
        }
    }
    return lines;
}

void RequireSameFindings(const PropertyTree& tree, const PropertyTree& form, std::string_view what)
{
    const std::string before = LastingFindings(tree);
    const std::string after = LastingFindings(form);
    Require(before == after, what, TextOf(tree) + "\nform: " + TextOf(form) + "\nbefore:\n" + before + "after:\n" + after);
}

void CompareNormal(const PropertyTree& tree)
{
    const PropertyTree normal = Normalise(tree);
    const Reading given(tree);
    RequireSame(normal, given.failure ? tree : given.written, "the normal form is not what is written", tree);
    if (std::ranges::none_of(Check(tree), &MayBeComputed))
    {
        RequireReadAlike(tree, normal, "the normal form is read otherwise");
    }
}

// Every key of each class that can be read is there, at every depth.
class WholeForm
{
public:
    explicit WholeForm(const PropertyTree& tree) : m_tree(tree) {}

    void RequireEffect(const PropertyTree& effect)
    {
        const PhotoCore::EffectClass* const effectClass = ClassOf(effect);
        if (!effectClass || effectClass->registration == PhotoCore::Registration::None || m_depth == 512)
        {
            return;
        }
        ++m_depth;
        RequireKey(effect, "implName");
        RequireKey(effect, "helperSettings");
        if (m_depth == 1 || effect["name"].getScalar().toString() != "effectSettingsTileStub") // a copied tile loses them
        {
            RequireRecord(effect["helperSettings"], PhotoCore::HelperSettings::Schema());
        }
        if (effectClass->getSchema())
        {
            RequireRecord(effect, *effectClass->getSchema());
        }
        --m_depth;
    }

private:
    // The text of a deep tree is long, so it is made only for a fault.
    void RequireKey(const PropertyTree& map, std::string_view key)
    {
        if (!map.contains(std::string(key)))
        {
            Require(false, "a frozen map lacks a key", std::string(key) + " in " + TextOf(m_tree));
        }
    }

    void RequireRecord(const PropertyTree& record, const Proc::RecordSchema& schema)
    {
        for (const Proc::FieldSchema& field : record.isMap() ? schema.fields : decltype(schema.fields){})
        {
            RequireKey(record, field.key);
            RequireValue(record[field.key], *field.value);
        }
    }

    void RequireValue(const PropertyTree& value, const Proc::ValueSchema& schema)
    {
        if (schema.kind == Proc::ValueKind::Effect)
        {
            RequireEffect(value);
        }
        else if (schema.kind == Proc::ValueKind::Record)
        {
            RequireRecord(value, schema.record());
        }
        else if (schema.kind == Proc::ValueKind::List && value.isList())
        {
            for (const PropertyTree& element : value.getList())
            {
                RequireValue(element, *schema.element);
            }
        }
    }

    const PropertyTree& m_tree;
    int m_depth = 0;
};

// With the elements of sets and colour maps in one order.
PropertyTree Ordered(PropertyTree tree)
{
    if (tree.isList())
    {
        for (PropertyTree& element : tree.getList())
        {
            element = Ordered(std::move(element));
        }
    }
    else if (tree.isMap())
    {
        for (auto& [key, child] : tree.getMap())
        {
            child = Ordered(std::move(child));
            if ((key == "applyMode" || key == "mode") && child.isList())
            {
                std::ranges::sort(child.getList(), {}, &TextOf);
            }
            else if (key == "gradient" && child.isList())
            {
                std::ranges::sort(child.getList(), {},
                                  [](const PropertyTree& element) { return element["key"].getScalar().toInt(); });
            }
        }
    }
    return tree;
}

void CompareThin(const PropertyTree& tree, const PropertyTree& thin)
{
    if (std::ranges::none_of(Check(tree), [](const Finding& finding) { return SeverityOf(finding.code) != Severity::Note; }))
    {
        RequireSame(Ordered(thin), Ordered(Normalise(tree)), "the thin form of a tree without warnings is not what is written",
                    tree);
    }
}

} // namespace

void CompareForms(const PropertyTree& tree)
{
    const PropertyTree thin = Thin(tree);
    const PropertyTree frozen = Freeze(tree);
    RequireSame(Thin(thin), thin, "the thin form can be made thinner", tree);
    RequireSame(Freeze(frozen), frozen, "the frozen form lacks something", tree);
    RequireSame(Thin(frozen), thin, "the frozen form has another thin form", tree);
    RequireSame(Freeze(thin), frozen, "the thin form has another frozen form", tree);
    RequireSameFindings(tree, thin, "the thin form has other findings");
    RequireSameFindings(tree, frozen, "the frozen form has other findings");

    const std::vector<PropertyTree> given = EffectsOf(tree);
    const std::vector<PropertyTree> thinOnes = EffectsOf(thin);
    const std::vector<PropertyTree> frozenOnes = EffectsOf(frozen);
    Require(given.size() == thinOnes.size() && given.size() == frozenOnes.size(), "a form has other effects", TextOf(tree));
    for (std::size_t index = 0; index != given.size(); ++index)
    {
        RequireReadAlike(given[index], thinOnes[index], "the thin form is read otherwise");
        RequireReadAlike(given[index], frozenOnes[index], "the frozen form is read otherwise");
        CompareNormal(given[index]);
        CompareThin(given[index], thinOnes[index]);
        WholeForm(frozenOnes[index]).RequireEffect(frozenOnes[index]);
    }
}

} // namespace Fuzz
