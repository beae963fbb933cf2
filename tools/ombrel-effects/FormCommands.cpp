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

// The form reads the same as the file; if it ever does not, nothing is written.
Report InForm(const Document& document, const PropertyTree& changed)
{
    Report report;
    report.SetDocument(document, changed);
    for (const Difference& difference : DifferencesOf(FullForm(document.Tree()), FullForm(changed)))
    {
        report.Complain(ExitCode::Findings, document.Name() + ": " + PathText(difference.path) + ": " + TextOf(difference));
    }
    return report;
}

} // namespace

Report ThinDocument(const Document& document)
{
    return InForm(document, Inspection::Thin(document.Tree()));
}

Report FreezeDocument(const Document& document)
{
    return InForm(document, Inspection::Freeze(document.Tree()));
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
