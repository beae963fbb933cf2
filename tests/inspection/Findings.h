#ifndef OMBREL_TESTS_INSPECTION_FINDINGS_H
#define OMBREL_TESTS_INSPECTION_FINDINGS_H

#include "Inspection/Check.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <string>
#include <string_view>

namespace Support
{

/// What a check finds, a line each: "error wrong-kind at radius -> taken out", with what a value is replaced by.
inline std::string LinesOf(const std::vector<Ombrel::Inspection::Finding>& findings)
{
    using namespace Ombrel::Inspection;
    std::string lines;
    for (const Finding& finding : findings)
    {
        lines += std::string(TextOf(SeverityOf(finding.code))) + " " + std::string(TextOf(finding.code)) + " at " +
                 finding.path.ToText();
        switch (finding.mend)
        {
        case Mend::None:
            break;
        case Mend::Replace:
            lines += " -> " + Ombrel::WriteJson(finding.becomes);
            break;
        case Mend::Remove:
            lines += " -> taken out";
            break;
        case Mend::RemoveElement:
            lines += " -> element taken out";
            break;
        }
        lines += "\n";
    }
    return lines;
}

inline std::string CheckedLines(std::string_view json, const Ombrel::Inspection::CheckOptions& options = {})
{
    return LinesOf(Ombrel::Inspection::Check(Ombrel::ReadJson(json, {.nonFiniteAsText = true}), options));
}

} // namespace Support

#endif
