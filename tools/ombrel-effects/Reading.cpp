#include "Reading.h"

#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyPath.h"

#include <algorithm>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace Ombrel::EffectsTool
{

using Inspection::Finding;
using Inspection::FindingCode;
using Inspection::Mend;
using Inspection::Severity;

namespace
{

bool IsError(const Finding& finding)
{
    return SeverityOf(finding.code) == Severity::Error;
}

// The path of an effect whose name is refused, which is as good as the effect; otherwise the path itself.
Inspection::Path WithoutName(const Inspection::Path& path)
{
    std::vector<Inspection::PathStep> steps = path.OwnSteps();
    if (!steps.empty() && steps.back() == Inspection::PathStep(std::string(Proc::StoredKeys::NAME)))
    {
        steps.pop_back();
    }
    return {path.Start(), std::move(steps)};
}

// How an error is mended; an effect that is refused as a whole is taken out.
Finding MendableOf(const Finding& error)
{
    Finding mendable;
    if (error.mend != Mend::None)
    {
        mendable.path = error.path;
        mendable.mend = error.mend;
        mendable.becomes = error.becomes;
        return mendable;
    }
    mendable.path = WithoutName(error.path);
    const Inspection::Path* path = &mendable.path;
    while (path->OwnSteps().empty() && path->Start())
    {
        path = path->Start().get();
    }
    const bool isOfMap = !path->OwnSteps().empty() && std::holds_alternative<std::string>(path->OwnSteps().back());
    mendable.mend = isOfMap ? Mend::Remove : Mend::Replace; // by null
    return mendable;
}

} // namespace

bool IsOfUnknownEffect(const Finding& finding)
{
    return finding.code == FindingCode::UnknownEffect || finding.code == FindingCode::NotRegistered;
}

bool IsReadable(std::span<const Finding> findings, bool isUnknownAnError)
{
    return std::ranges::none_of(findings, [isUnknownAnError](const Finding& finding)
                                { return IsError(finding) && (isUnknownAnError || !IsOfUnknownEffect(finding)); });
}

bool IsAround(const Finding& error, PathView place)
{
    return StartsWith(place, WithoutName(error.path));
}

PropertyTree WithoutErrors(const PropertyTree& tree, std::span<const Finding> findings)
{
    std::vector<Finding> mendable;
    for (const Finding& finding : findings)
    {
        if (IsError(finding))
        {
            mendable.push_back(MendableOf(finding));
        }
    }
    return Mended(tree, mendable);
}

PropertyTree WrittenForm(const PropertyTree& tree, std::span<const Finding> findings)
{
    return Inspection::Normalise(IsReadable(findings, true) ? tree : WithoutErrors(tree, findings));
}

PropertyTree FullForm(const PropertyTree& tree, std::span<const Finding> findings)
{
    return Inspection::Freeze(WrittenForm(tree, findings));
}

PropertyTree FullForm(const PropertyTree& tree)
{
    return FullForm(tree, Inspection::Check(tree));
}

} // namespace Ombrel::EffectsTool
