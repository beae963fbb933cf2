#include "Address.h"
#include "FindingText.h"
#include "Inspection/Check.h"
#include "Reading.h"
#include "ValueCommands.h"

namespace Ombrel::EffectsTool
{
namespace
{

using Inspection::Finding;

// The value is missing from what is read: perhaps since it cannot be read.
void ThrowIfUnreadable(const Document& document, const Address& address, const std::vector<Finding>& findings)
{
    for (const Finding& finding : findings)
    {
        if (SeverityOf(finding.code) == Inspection::Severity::Error && IsAround(finding, address.rest))
        {
            throw ToolError(ExitCode::BadInput, LineOfEffect(finding, document, address.index));
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
    const std::vector<Finding> findings = Inspection::Check(element);
    ThrowIfUnreadable(document, address, findings);
    const PropertyTree full = FullForm(element, findings);
    const PropertyTree* value = Find(full, address.rest);
    if (!value)
    {
        ThrowNoSuchPlace(document, address.index, full, address.rest);
    }
    report.out = Indented(*value, Where(document, address.index, address.rest), document.Options().nonFinite);
    return report;
}

} // namespace Ombrel::EffectsTool
