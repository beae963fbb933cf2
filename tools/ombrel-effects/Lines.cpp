#include "PropertyTreeJson/MessageText.h"
#include "Runner.h"
#include "System.h"
#include "TextFile.h"

#include <optional>
#include <string_view>
#include <utility>

namespace Ombrel::EffectsTool
{
namespace
{

/// The lines of a file, of which one at a time is in memory.
class LineReader
{
public:
    LineReader(std::string name, std::size_t maxBytes)
        : m_name(std::move(name)), m_maxBytes(maxBytes), m_file(OpenTextFile(m_name))
    {
    }

    /// False at the end. The line has its line end, unless the last one has none.
    bool Next(std::string& line)
    {
        line.clear();
        ++m_number;
        while (!line.ends_with('\n') && Fill())
        {
            const std::size_t end = m_rest.find('\n');
            const std::string_view part = m_rest.substr(0, end == std::string_view::npos ? end : end + 1);
            line += part;
            m_rest.remove_prefix(part.size());
            if (line.size() - (line.ends_with('\n') ? 1 : 0) > m_maxBytes)
            {
                throw ToolError(ExitCode::File, NameOfFile(m_name) + ":" + std::to_string(m_number) + ": is longer than the " +
                                                    std::to_string(m_maxBytes) + " bytes that --max-bytes allows");
            }
        }
        return !line.empty();
    }

    std::size_t Number() const noexcept { return m_number; }

private:
    // False at the end.
    bool Fill()
    {
        if (m_rest.empty())
        {
            const std::optional<std::size_t> count = m_file.Read(m_buffer.data(), m_buffer.size());
            if (!count)
            {
                ThrowUnreadable(m_name);
            }
            m_rest = std::string_view(m_buffer).substr(0, *count);
        }
        return !m_rest.empty();
    }

    std::string m_name;
    std::size_t m_maxBytes;
    System::File m_file;
    std::string m_buffer = std::string(65536, '\0');
    std::string_view m_rest; // of the buffer
    std::size_t m_number = 0;
};

// What takes the place of a line that cannot be worked on: the line.
void HandThrough(Report& report, const std::string& line, bool hasDocuments)
{
    if (hasDocuments && !report.document)
    {
        report.document = line.ends_with('\n') ? line : line + '\n';
    }
}

Report ReportOn(const std::string& file, const std::string& line, std::size_t number, const RunOptions& options,
                const Work& work)
{
    Report report;
    try
    {
        std::string text = line;
        text.resize(text.size() - (text.ends_with('\n') ? 1 : 0)); // a fault at its end is in this line, not in the next
        report = work(Document::OfLine(file, std::move(text), number, options.reading));
        const bool isHeldBack = report.code != ExitCode::Fine && !report.isAskedFor;
        if (isHeldBack && !(options.isForced && report.code == ExitCode::Findings))
        {
            report.document.reset();
        }
    }
    catch (const ToolError& error)
    {
        report.document.reset();
        report.Complain(error.code(), error.what());
    }
    return report;
}

bool IsBlank(const std::string& line)
{
    return line.find_first_not_of(" \t\r\n") == std::string::npos;
}

} // namespace

void RunOnLines(const std::vector<std::string>& files, const RunOptions& options, bool hasDocuments, const Work& work,
                Report& report)
{
    Print(report);
    report.complaints.clear();
    for (const std::string& file : files)
    {
        try
        {
            LineReader lines(file, options.reading.maxBytes);
            for (std::string line; lines.Next(line);)
            {
                Report part = IsBlank(line) ? Report() : ReportOn(file, line, lines.Number(), options, work);
                HandThrough(part, line, hasDocuments);
                Print(part);
                report.Merge(part);
            }
        }
        catch (const ToolError& error)
        {
            Report failure;
            failure.Complain(error.code(), error.what());
            Print(failure);
            report.Merge(failure);
        }
    }
}

} // namespace Ombrel::EffectsTool
