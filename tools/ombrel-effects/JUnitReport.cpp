#include "JUnitReport.h"

#include "PropertyTreeJson/MessageText.h"
#include "TextFile.h"

#include <algorithm>
#include <string_view>

namespace Ombrel::EffectsTool
{
namespace
{

// The texts have no control characters but line ends, which XML would not take either.
std::string Xml(std::string_view text)
{
    std::string result;
    for (const char c : text)
    {
        switch (c)
        {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

bool IsFailure(ExitCode code)
{
    return code == ExitCode::Findings;
}

bool IsError(ExitCode code)
{
    return code > ExitCode::Findings;
}

} // namespace

void JUnitReport::Add(const std::string& file, const Report& report)
{
    std::string text = report.out;
    for (const std::string& complaint : report.complaints)
    {
        text += MessageText::PrintableLines(complaint) + "\n";
    }
    m_cases.push_back({NameOfFile(file), std::move(text), SummaryOf(report.counts), report.code});
}

std::string JUnitReport::Text() const
{
    const auto count = [this](bool (*isIt)(ExitCode))
    { return std::to_string(std::ranges::count_if(m_cases, [isIt](const Case& one) { return isIt(one.code); })); };
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuite name=\"ombrel-effects check\" tests=\"" +
                       std::to_string(m_cases.size()) + "\" failures=\"" + count(&IsFailure) + "\" errors=\"" +
                       count(&IsError) + "\">\n";
    for (const Case& one : m_cases)
    {
        text += "  <testcase classname=\"ombrel-effects.check\" name=\"" + Xml(one.file) + "\"";
        if (one.text.empty())
        {
            text += "/>\n";
            continue;
        }
        const bool isError = IsError(one.code);
        const std::string element = isError ? "error" : IsFailure(one.code) ? "failure" : "system-out";
        const std::string message = isError ? "cannot be checked" : one.summary;
        text += ">\n    <" + element + (element == "system-out" ? "" : " message=\"" + Xml(message) + "\"") + ">" +
                Xml(one.text) + "</" + element + ">\n  </testcase>\n";
    }
    return text + "</testsuite>\n";
}

} // namespace Ombrel::EffectsTool
