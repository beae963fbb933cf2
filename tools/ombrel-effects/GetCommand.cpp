#include "Address.h"
#include "FindingText.h"
#include "Inspection/Check.h"
#include "Reading.h"
#include "ValueCommands.h"

#include <algorithm>

namespace Ombrel::EffectsTool
{
namespace
{

using Inspection::Finding;

// The errors of an element, with paths from the root of the document.
std::vector<Finding> FindingsOf(const Document& document, std::size_t index)
{
    std::vector<Finding> findings = Inspection::Check(document[index]);
    if (document.IsList())
    {
        for (Finding& finding : findings)
        {
            finding.path.steps.emplace(finding.path.steps.begin(), index);
        }
    }
    return findings;
}

// The value is missing from what is read: perhaps since it cannot be read.
void ThrowIfUnreadable(const Document& document, const Path& path, const std::vector<Finding>& findings)
{
    for (const Finding& finding : findings)
    {
        const Path at = StepsOf(finding.path);
        const bool isNamed = !at.empty() && at.back() == "name";
        const std::size_t length = at.size() - (isNamed ? 1 : 0);
        const bool isAround =
            length <= path.size() && std::equal(at.begin(), at.begin() + static_cast<std::ptrdiff_t>(length), path.begin());
        if (SeverityOf(finding.code) == Inspection::Severity::Error && isAround)
        {
            throw ToolError(ExitCode::BadInput, LineOf(finding, document, false));
        }
    }
}

} // namespace

Report GetValue(const Document& document, const Path& path, bool isRaw)
{
    const Address address = Locate(document, path);
    const PropertyTree& element = document[address.index];
    Report report;
    if (isRaw)
    {
        const PropertyTree* stored = Find(element, address.rest);
        if (!stored)
        {
            ThrowNoSuchPlace(document, address.index, element, address.rest);
        }
        report.out = Indented(*stored, Where(document, address.index, address.rest), document.Options().nonFinite);
        return report;
    }
    const std::vector<Finding> findings = FindingsOf(document, address.index);
    ThrowIfUnreadable(document, path, findings);
    const PropertyTree full = FullForm(element);
    const PropertyTree* value = Find(full, address.rest);
    if (!value)
    {
        ThrowNoSuchPlace(document, address.index, full, address.rest);
    }
    report.out = Indented(*value, Where(document, address.index, address.rest), document.Options().nonFinite);
    return report;
}

} // namespace Ombrel::EffectsTool
