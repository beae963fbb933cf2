#include "CheckComparison.h"

#include "Fuzz.h"
#include "StoredEffects.h"

#include "Inspection/Check.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTree/PropertyTreeOutput.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
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

std::string TextOf(const PropertyTree& tree)
{
    std::ostringstream text;
    text << tree;
    return text.str();
}

std::string TextOf(const PropertyTree& tree, const std::vector<Finding>& findings)
{
    std::string text = TextOf(tree);
    for (const Finding& finding : findings)
    {
        text +=
            "\n  " + std::string(Inspection::TextOf(finding.code)) + " at " + finding.path.ToText() + ": " + finding.message;
    }
    return text;
}

bool Has(const std::vector<Finding>& findings, Severity severity)
{
    return std::ranges::any_of(findings, [&](const Finding& finding) { return SeverityOf(finding.code) == severity; });
}

// Numbers by value, lists of sets in any order, and no map where a background is as by default.
PropertyTree Plain(const PropertyTree& tree)
{
    PropertyTree plain;
    if (tree.isScalar() && tree.getScalar().kind() == PropertyTreeScalar::Kind::Float)
    {
        const double number = tree.getScalar().toDouble();
        const bool isInteger = number >= -9223372036854775808.0 && number < 9223372036854775808.0 &&
                               static_cast<double>(static_cast<std::int64_t>(number)) == number;
        return isInteger ? PropertyTree(static_cast<std::int64_t>(number)) : std::isnan(number) ? PropertyTree("NaN") : tree;
    }
    if (tree.isScalar() && tree.getScalar().kind() == PropertyTreeScalar::Kind::Integer)
    {
        // A float may have come from an integer of more digits than it holds; those findings are told apart before.
        return tree;
    }
    if (tree.isMap())
    {
        plain.makeMap();
        for (const auto& [key, child] : tree.getMap())
        {
            if (key == "backgroundSettings" && child.isMap() && child.getMap().empty())
            {
                continue;
            }
            PropertyTree value = Plain(child);
            if ((key == "applyMode" || key == "mode" || key == "gradient") && value.isList())
            {
                std::ranges::sort(value.getList(), {}, [](const PropertyTree& element) { return TextOf(element); });
            }
            plain[key] = std::move(value);
        }
        return plain;
    }
    if (tree.isList())
    {
        plain.makeList();
        std::ranges::transform(tree.getList(), std::back_inserter(plain.getList()), Plain);
        return plain;
    }
    return tree;
}

void CompareOne(const PropertyTree& tree)
{
    const std::vector<Finding> findings = Check(tree);
    for (const Finding& finding : findings)
    {
        const bool isMissing = finding.code == FindingCode::NoName || finding.code == FindingCode::NoSchema ||
                               finding.code == FindingCode::RaggedRows || finding.code == FindingCode::ChangesOnWrite;
        Require(isMissing || !finding.found.isNull() || finding.mend != Mend::None || finding.code == FindingCode::NullEffect,
                "a finding shows nothing", TextOf(tree, findings));
    }

    std::shared_ptr<IEffectSettings> effect;
    const auto failure = FailureOf([&] { EffectSettings::DeserializePtr(tree, effect); });
    Require(failure.has_value() == Has(findings, Severity::Error),
            failure ? "a read fails without an error: " + *failure : "a read does not fail in spite of an error",
            TextOf(tree, findings));

    if (!Has(findings, Severity::Error) && !Has(findings, Severity::Warning))
    {
        PropertyTree written;
        EffectSettings::SerializePtr(written, effect);
        Require(Plain(Mended(tree, findings)) == Plain(written), "a tree without errors and warnings is written otherwise",
                TextOf(tree, findings) + "\nwritten: " + TextOf(written));
    }

    const PropertyTree mended = Mended(tree, findings);
    for (const Finding& left : Check(mended))
    {
        Require(left.mend == Mend::None, "a mended tree can be mended further",
                TextOf(tree, findings) + "\nmended: " + TextOf(mended, Check(mended)));
    }

    // Errors are told in the order in which they stop a read: without the first, it stops at the next.
    const auto isError = [](const Finding& finding) { return SeverityOf(finding.code) == Severity::Error; };
    const auto first = std::ranges::find_if(findings, isError);
    if (first != findings.end() && (first->mend == Mend::Remove || first->mend == Mend::Replace))
    {
        const PropertyTree without = Mended(tree, {&*first, 1});
        const std::vector<Finding> later = Check(without);
        const auto before = std::ranges::count_if(findings, isError);
        const auto after = std::ranges::count_if(later, isError);
        Require(after >= before - 1, "with one error others went",
                TextOf(tree, findings) + "\nwithout: " + TextOf(without, later));
    }
}

} // namespace

void CompareCheck(const PropertyTree& tree)
{
    if (!tree.isList())
    {
        CompareOne(tree);
        return;
    }
    for (std::size_t index = 0; index != tree.getList().size(); ++index)
    {
        const PropertyTree& effect = tree.getList()[index];
        if (!effect.isList())
        {
            CompareOne(effect);
        }
    }
    static_cast<void>(Check(tree));
}

} // namespace Fuzz
