#include "CheckCommand.h"

#include "FindingText.h"
#include "Inspection/Check.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <cstdint>

namespace Ombrel::EffectsTool
{

using Inspection::Finding;
using Inspection::FindingCode;
using Inspection::Severity;

namespace
{

std::string Printed(const Finding& finding, const Document& document, const CheckSettings& settings)
{
    if (!settings.isJson)
    {
        return LineOf(finding, document, settings.isColoured);
    }
    return WriteJson(JsonOf(finding, document), {.nonFiniteAsText = true});
}

// Of the ignored codes nothing is said and nothing mended.
std::vector<Finding> FindingsIn(const PropertyTree& tree, const CheckSettings& settings)
{
    std::vector<Finding> findings = Inspection::Check(tree, {.maxFindings = settings.maxFindings, .release = settings.release});
    std::erase_if(findings, [&settings](const Finding& finding)
                  { return std::ranges::find(settings.ignored, finding.code) != settings.ignored.end(); });
    return findings;
}

void Count(const std::vector<Finding>& findings, const CheckSettings& settings, Report& report)
{
    for (const Finding& finding : findings)
    {
        const Severity severity = SeverityOf(finding.code);
        ++(severity == Severity::Error     ? report.counts.errors
           : severity == Severity::Warning ? report.counts.warnings
                                           : report.counts.notes);
        if (severity != Severity::Note || settings.isStrict)
        {
            report.Raise(ExitCode::Findings);
        }
    }
}

} // namespace

std::optional<FindingCode> CodeOf(std::string_view text)
{
    for (std::uint8_t number = 0; number <= static_cast<std::uint8_t>(FindingCode::NoSchema); ++number)
    {
        if (TextOf(FindingCode{number}) == text)
        {
            return FindingCode{number};
        }
    }
    return std::nullopt;
}

Report CheckDocument(const Document& document, const CheckSettings& settings)
{
    Report report;
    const std::vector<Finding> findings = FindingsIn(document.Tree(), settings);
    if (settings.isFixing)
    {
        const PropertyTree mended = Mended(document.Tree(), findings);
        for (const Finding& finding : findings)
        {
            const bool isMended = finding.mend != Inspection::Mend::None;
            report.complaints.push_back(Printed(finding, document, settings) + (isMended ? ", mended" : ""));
        }
        report.SetDocument(document, mended);
        report.isAskedFor = true;
        Count(FindingsIn(mended, settings), settings, report);
        return report;
    }
    for (const Finding& finding : findings)
    {
        report.out += Printed(finding, document, settings) + "\n";
    }
    if (findings.size() >= settings.maxFindings)
    {
        report.Complain(ExitCode::Findings, document.Name() + ": there may be more findings; --max-findings asks for them");
    }
    Count(findings, settings, report);
    return report;
}

} // namespace Ombrel::EffectsTool
