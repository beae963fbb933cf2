#include "Inspection/Finding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

// In the order of the codes.
constexpr std::array<std::string_view, 25> TEXTS{
    "no-name",         "unknown-effect",    "wrong-kind",      "bad-colour",     "number-too-large",
    "too-deep",        "not-an-effect",     "not-registered",  "refused",        "unknown-name",
    "number-for-name", "cut-integer",       "truncated-float", "narrowed-float", "colour-not-canonical",
    "ignored-value",   "duplicate-element", "unknown-key",     "lost-by-copy",   "changes-on-write",
    "default-written", "null-effect",       "ragged-rows",     "not-a-number",   "no-schema",
};

static_assert(TEXTS.size() == static_cast<std::size_t>(FindingCode::NoSchema) + 1);

// The value at `path`, or null.
PropertyTree* Find(PropertyTree& tree, std::span<const PathStep> path)
{
    PropertyTree* value = &tree;
    for (const PathStep& step : path)
    {
        if (const std::size_t* index = std::get_if<std::size_t>(&step))
        {
            if (!value->isList() || value->getList().size() <= *index)
            {
                return nullptr;
            }
            value = &value->getList()[*index];
            continue;
        }
        if (!value->isMap())
        {
            return nullptr;
        }
        const auto found = value->getMap().find(std::get<std::string>(step));
        if (found == value->getMap().end())
        {
            return nullptr;
        }
        value = &found->second;
    }
    return value;
}

void Remove(PropertyTree& parent, const PathStep& step)
{
    if (const std::size_t* index = std::get_if<std::size_t>(&step))
    {
        parent.getList().erase(parent.getList().begin() + static_cast<std::ptrdiff_t>(*index));
    }
    else
    {
        parent.getMap().erase(std::get<std::string>(step));
    }
}

} // namespace

std::string_view TextOf(FindingCode code) noexcept
{
    return TEXTS[static_cast<std::size_t>(code)];
}

Severity SeverityOf(FindingCode code) noexcept
{
    return code <= FindingCode::Refused          ? Severity::Error
           : code <= FindingCode::ChangesOnWrite ? Severity::Warning
                                                 : Severity::Note;
}

std::string_view TextOf(Severity severity) noexcept
{
    return severity == Severity::Error ? "error" : severity == Severity::Warning ? "warning" : "note";
}

PropertyTree Mended(PropertyTree tree, std::span<const Finding> findings)
{
    // First what is replaced, then what goes, from the last element to the first, so that the paths of the others still hold.
    std::vector<std::span<const PathStep>> removals;
    for (const Finding& finding : findings)
    {
        const std::span<const PathStep> steps(finding.path.steps);
        const std::size_t parts = finding.mend == Mend::RemoveElement ? 1 : 0; // of the element, below it
        if (finding.mend >= Mend::Remove && steps.size() > parts)
        {
            removals.push_back(steps.first(steps.size() - parts));
        }
        else if (finding.mend == Mend::Replace)
        {
            if (PropertyTree* value = Find(tree, finding.path.steps))
            {
                *value = finding.becomes;
            }
        }
    }
    const auto isBefore = [](std::span<const PathStep> one, std::span<const PathStep> other)
    { return std::ranges::lexicographical_compare(other, one); };
    std::ranges::sort(removals, isBefore);
    const auto areSame = [](std::span<const PathStep> one, std::span<const PathStep> other)
    { return std::ranges::equal(one, other); };
    removals.erase(std::unique(removals.begin(), removals.end(), areSame), removals.end());
    for (const std::span<const PathStep> path : removals)
    {
        if (Find(tree, path))
        {
            Remove(*Find(tree, path.first(path.size() - 1)), path.back());
        }
    }
    return tree;
}

} // namespace Ombrel::Inspection
