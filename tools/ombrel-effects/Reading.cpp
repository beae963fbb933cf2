#include "Reading.h"

#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyPath.h"

#include <algorithm>
#include <string>
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

// Takes out an effect that is refused as a whole.
void TakeOut(PropertyTree& tree, const Finding& finding)
{
    Path path = StepsOf(finding.path);
    if (!path.empty() && path.back() == Proc::StoredKeys::NAME)
    {
        path.pop_back(); // the name of an effect is as good as the effect
    }
    if (path.empty())
    {
        tree = {};
        return;
    }
    PropertyTree* parent = Find(tree, PathView(path).first(path.size() - 1));
    if (parent && parent->isMap())
    {
        parent->getMap().erase(path.back());
    }
    else if (parent && parent->isList() && FindChild(*parent, path.back()))
    {
        *Find(*parent, PathView(path).last(1)) = {};
    }
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

PropertyTree WithoutErrors(const PropertyTree& tree, std::span<const Finding> findings)
{
    PropertyTree readable = tree;
    std::vector<Finding> mendable;
    for (const Finding& finding : findings)
    {
        if (IsError(finding) && finding.mend == Mend::None)
        {
            TakeOut(readable, finding);
        }
        else if (IsError(finding))
        {
            mendable.push_back(finding);
        }
    }
    return mendable.empty() ? readable : Mended(std::move(readable), mendable);
}

PropertyTree FullForm(const PropertyTree& tree, std::span<const Finding> findings)
{
    const PropertyTree* readable = &tree;
    PropertyTree changed;
    if (!IsReadable(findings, true))
    {
        changed = WithoutErrors(tree, findings);
        readable = &changed;
    }
    return Inspection::Freeze(Inspection::Normalise(*readable));
}

PropertyTree FullForm(const PropertyTree& tree)
{
    return FullForm(tree, Inspection::Check(tree));
}

} // namespace Ombrel::EffectsTool
