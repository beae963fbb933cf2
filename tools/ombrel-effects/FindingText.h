#ifndef OMBREL_EFFECTS_TOOL_FINDING_TEXT_H
#define OMBREL_EFFECTS_TOOL_FINDING_TEXT_H

#include "Document.h"
#include "Inspection/Finding.h"
#include "PropertyTree/PropertyTree.h"
#include "Report.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// What a finding says, in one line: "expected an integer, found "x"; did you mean "radius"? [wrong-kind]". The line holds no
/// control character and is valid UTF-8.
std::string MessageOf(const Inspection::Finding& finding);

/// "FILE:LINE:COLUMN: error: PATH: message [code]", without a line end.
/// @param isColoured with the colours of a terminal
std::string LineOf(const Inspection::Finding& finding, const Document& document, bool isColoured);

/// The same for a finding of a check of one effect of the document.
std::string LineOfEffect(Inspection::Finding finding, const Document& document, std::size_t index);

/// How many findings a command says of a file if it is not told how many.
inline constexpr std::size_t MOST_SHOWN = 1000;

/// "FILE: 17 more, which `check --max-findings` shows".
std::string MoreText(const Document& document, std::size_t count);

/// Complains of the findings for which `codeOf` has an exit code.
template <class CodeOf>
void ComplainOf(const std::vector<Inspection::Finding>& findings, const Document& document, Report& report,
                const CodeOf& codeOf)
{
    std::size_t count = 0;
    for (const Inspection::Finding& finding : findings)
    {
        if (const std::optional<ExitCode> code = codeOf(finding))
        {
            report.Raise(*code);
            if (++count <= MOST_SHOWN)
            {
                report.Complain(*code, LineOf(finding, document, false));
            }
        }
    }
    if (count > MOST_SHOWN)
    {
        report.complaints.push_back(MoreText(document, count - MOST_SHOWN));
    }
}

/// The finding as the JSON output has it: see docs/check-output.schema.json.
PropertyTree JsonOf(const Inspection::Finding& finding, const Document& document);

} // namespace Ombrel::EffectsTool

#endif
