#include "PropertyTreeJson/MessageText.h"
#include "Runner.h"
#include "TextFile.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

namespace Ombrel::EffectsTool
{
namespace
{

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

Stream Open(const std::string& file)
{
    if (file == "-")
    {
        return {stdin, [](std::FILE*) { return 0; }};
    }
    return {std::fopen(file.c_str(), "rbe"), &std::fclose};
}

/// The lines of a file, of which one at a time is in memory.
class LineReader
{
public:
    LineReader(std::string file, std::size_t maxBytes) : m_file(std::move(file)), m_maxBytes(maxBytes), m_stream(Open(m_file))
    {
        if (!m_stream)
        {
            ThrowUnreadable();
        }
    }

    /// False at the end. The line has its line end, unless the last one has none.
    bool Next(std::string& line)
    {
        line.clear();
        ++m_number;
        for (int byte = ::getc_unlocked(m_stream.get()); byte != EOF; byte = ::getc_unlocked(m_stream.get()))
        {
            line += static_cast<char>(byte);
            if (byte == '\n')
            {
                return true;
            }
            if (line.size() > m_maxBytes)
            {
                throw ToolError(ExitCode::File, NameOfFile(m_file) + ":" + std::to_string(m_number) + ": is longer than the " +
                                                    std::to_string(m_maxBytes) + " bytes that --max-bytes allows");
            }
        }
        if (std::ferror(m_stream.get()) != 0)
        {
            ThrowUnreadable();
        }
        return !line.empty();
    }

    std::size_t Number() const noexcept { return m_number; }

private:
    [[noreturn]] void ThrowUnreadable() const
    {
        throw ToolError(ExitCode::File, NameOfFile(m_file) + ": cannot be read: " + LastError());
    }

    std::string m_file;
    std::size_t m_maxBytes;
    Stream m_stream;
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
