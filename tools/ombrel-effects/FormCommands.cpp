#include "FormCommands.h"

#include "Address.h"
#include "FindingText.h"
#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "Reading.h"
#include "TreeDifference.h"
#include "Values.h"

#include <cstddef>

namespace Ombrel::EffectsTool
{

using Inspection::Finding;
using Inspection::FindingCode;
using Inspection::Severity;

namespace
{

// The form reads the same as the file; if it ever does not, nothing is written. What it left alone need not be read.
Report InForm(const Document& document, const PropertyTree& changed)
{
    Report report;
    report.SetDocument(document, changed);
    for (std::size_t index = 0; index != document.Size(); ++index)
    {
        const PropertyTree& before = document[index];
        const PropertyTree& after = document.IsList() ? changed.getList()[index] : changed;
        if (before == after)
        {
            continue;
        }
        for (const Difference& difference : DifferencesOf(FullForm(before), FullForm(after)))
        {
            report.Complain(ExitCode::Findings, Where(document, index, difference.path) + TextOf(difference));
        }
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

Report ConvertDocument(const Document& document, const Inspection::Release& release)
{
    const Inspection::Conversion conversion = ConvertedFor(release, document.Tree());
    Report report = InForm(document, conversion.tree);
    report.isAskedFor = report.complaints.empty(); // what the release does not read is known by then
    ComplainOf(conversion.losses, document, report,
               [](const Finding& finding)
               { return SeverityOf(finding.code) == Severity::Note ? std::nullopt : std::optional(ExitCode::Findings); });
    return report;
}

Report NormaliseDocument(const Document& document)
{
    Report report;
    ComplainOf(Inspection::Check(document.Tree()), document, report,
               [](const Finding& finding) -> std::optional<ExitCode>
               {
                   const Severity severity = SeverityOf(finding.code);
                   if (severity == Severity::Note || IsOfUnknownEffect(finding))
                   {
                       return std::nullopt; // nothing is lost, and an effect that is not known stays as it is
                   }
                   return severity == Severity::Error ? ExitCode::BadInput : ExitCode::Findings;
               });
    report.SetDocument(document, Inspection::Normalise(document.Tree()));
    return report;
}

} // namespace Ombrel::EffectsTool
