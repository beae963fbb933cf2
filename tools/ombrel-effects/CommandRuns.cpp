#include "CommandRuns.h"

#include "Inputs.h"
#include "Inspection/Nearest.h"
#include "JUnitReport.h"
#include "System.h"
#include "TextFile.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace Ombrel::EffectsTool
{
namespace
{

bool HasColours()
{
    const char* const noColour = std::getenv("NO_COLOR"); // NOLINT(concurrency-mt-unsafe): before any thread starts
    return System::HasColours(stdout) && (!noColour || !*noColour);
}

} // namespace

Report OnFile(Arguments& arguments, const Work& work)
{
    if (arguments.run.isInPlace && arguments.file == "-")
    {
        throw ToolError(ExitCode::Usage, "<stdin>: cannot be replaced, expected a file with --in-place");
    }
    Report report;
    RunOnFiles({arguments.file}, arguments.run, work, report);
    return report;
}

Report OnFiles(Arguments& arguments, bool hasDocuments, const Work& work)
{
    if (arguments.areLines && arguments.run.isInPlace)
    {
        throw ToolError(ExitCode::Usage, "--lines prints what becomes of each line, so that it excludes --in-place");
    }
    Report report;
    const std::vector<std::string> files = FilesOf(arguments.files, report.complaints);
    if (!report.complaints.empty())
    {
        report.Raise(ExitCode::File);
    }
    for (const std::string& file : files)
    {
        if (arguments.run.isInPlace && file == "-")
        {
            throw ToolError(ExitCode::Usage, "<stdin>: cannot be replaced, expected a file with --in-place");
        }
    }
    if (arguments.areLines)
    {
        RunOnLines(files, arguments.run, hasDocuments, work, report);
        return report;
    }
    if (hasDocuments && files.size() > 1 && !arguments.run.isInPlace)
    {
        throw ToolError(ExitCode::Usage, "several files need --in-place, since only one document can be printed");
    }
    RunOnFiles(files, arguments.run, work, report);
    return report;
}

Report RunCheck(Arguments& arguments)
{
    CheckSettings& settings = arguments.check;
    for (const std::string& text : arguments.ignoredCodes)
    {
        const auto code = CodeOf(text);
        if (!code)
        {
            const std::vector<std::string> codes = FindingCodes(); // to which the nearest may refer
            Inspection::NearestName nearest(text);
            std::string all;
            for (const std::string& known : codes)
            {
                nearest.Try(known);
                all += (all.empty() ? "" : ", ") + known;
            }
            throw ToolError(ExitCode::Usage,
                            text + ": no such code, " +
                                (nearest.Get().empty() ? "expected one of " + all : "did you mean " + nearest.Get() + "?"));
        }
        settings.ignored.push_back(*code);
    }
    if (arguments.run.isInPlace && !settings.isFixing)
    {
        throw ToolError(ExitCode::Usage, "--in-place needs --fix");
    }
    if (!arguments.junitFile.empty() && arguments.areLines)
    {
        throw ToolError(ExitCode::Usage, "--junit has a test for each file, so that it excludes --lines");
    }
    if (!arguments.release.empty())
    {
        if (settings.isFixing)
        {
            throw ToolError(ExitCode::Usage, "--for excludes --fix: convert makes a file that a release reads");
        }
        settings.release = Inspection::ReadRelease(arguments.release);
    }
    settings.isJson = arguments.isJson;
    settings.isColoured = HasColours() && arguments.junitFile.empty();
    JUnitReport tests;
    if (!arguments.junitFile.empty())
    {
        arguments.run.whenDone = [&tests](const std::string& file, const Report& part) { tests.Add(file, part); };
    }
    Report report = OnFiles(arguments, settings.isFixing,
                            [&settings](const Document& document) { return CheckDocument(document, settings); });
    if (!arguments.junitFile.empty())
    {
        WriteTextFile(arguments.junitFile, tests.Text());
    }
    if (!arguments.run.isQuiet)
    {
        report.complaints.push_back(SummaryOf(report.counts) + (settings.isFixing ? " left" : ""));
    }
    return report;
}

std::vector<std::string> FindingCodes()
{
    std::vector<std::string> codes;
    for (std::uint8_t number = 0; number <= static_cast<std::uint8_t>(Inspection::FindingCode::NoSchema); ++number)
    {
        codes.emplace_back(TextOf(Inspection::FindingCode{number}));
    }
    return codes;
}

} // namespace Ombrel::EffectsTool
