#ifndef OMBREL_EFFECTS_TOOL_JUNIT_REPORT_H
#define OMBREL_EFFECTS_TOOL_JUNIT_REPORT_H

#include "Report.h"

#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// The XML in which build servers show results of tests: a file is a test. One with findings has failed; one that could not be
/// checked is an error.
class JUnitReport
{
public:
    void Add(const std::string& file, const Report& report);

    std::string Text() const;

private:
    struct Case
    {
        std::string file;
        std::string text; // what was found
        std::string summary;
        ExitCode code;
    };

    std::vector<Case> m_cases;
};

} // namespace Ombrel::EffectsTool

#endif
