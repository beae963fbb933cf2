#include "FormCommands.h"

#include "FindingText.h"
#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "Reading.h"
#include "TreeDifference.h"
#include "Values.h"

namespace Ombrel::EffectsTool
{

using Inspection::Finding;
using Inspection::FindingCode;
using Inspection::Severity;

namespace
{

// Both forms read the same; if they ever do not, nothing is written.
void CompareWhatIsRead(const Document& document, const PropertyTree& changed, Report& report)
{
    for (const Difference& difference : DifferencesOf(FullForm(document.Tree()), FullForm(changed)))
    {
        report.Complain(ExitCode::Findings, document.Name() + ": " + PathText(difference.path) + ": " + TextOf(difference));
    }
}

} // namespace

Report ThinDocument(const Document& document)
{
    Report report;
    const PropertyTree thin = Inspection::Thin(document.Tree());
    report.SetDocument(document, thin);
    CompareWhatIsRead(document, thin, report);
    return report;
}

Report FreezeDocument(const Document& document)
{
    Report report;
    const PropertyTree frozen = Inspection::Freeze(document.Tree());
    report.SetDocument(document, frozen);
    CompareWhatIsRead(document, frozen, report);
    return report;
}

Report NormaliseDocument(const Document& document)
{
    Report report;
    for (const Finding& finding : Inspection::Check(document.Tree()))
    {
        const Severity severity = SeverityOf(finding.code);
        if (severity == Severity::Note || IsOfUnknownEffect(finding))
        {
            continue; // nothing is lost, and an effect that is not known stays as it is
        }
        report.Complain(severity == Severity::Error ? ExitCode::BadInput : ExitCode::Findings,
                        LineOf(finding, document, false));
    }
    report.SetDocument(document, Inspection::Normalise(document.Tree()));
    return report;
}

} // namespace Ombrel::EffectsTool
