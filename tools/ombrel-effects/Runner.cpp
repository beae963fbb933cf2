#include "Runner.h"

#include "FileInPlace.h"
#include "PropertyTreeJson/MessageText.h"
#include "System.h"
#include "TextFile.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>

namespace Ombrel::EffectsTool
{
namespace
{

// Force does not help where an effect could not be read.
std::string HeldBack(ExitCode code)
{
    return std::string("nothing written") + (code == ExitCode::Findings ? "; --force writes the result all the same" : "");
}

void WriteAll(std::FILE* stream, const std::string& text)
{
    if (!text.empty() && (std::fwrite(text.data(), 1, text.size(), stream) != text.size() || std::fflush(stream) != 0))
    {
        System::EndIfNobodyReads();
        throw ToolError(ExitCode::File, "<stdout>: cannot be written: " + System::LastError());
    }
}

// The document of a report goes to where it belongs, unless something would be lost.
void Place(Report& report, const RunOptions& options, const std::string& name, FileInPlace* file)
{
    if (!report.document)
    {
        return;
    }
    const bool isHeldBack = report.code != ExitCode::Fine && !report.isAskedFor;
    if (isHeldBack && !(options.isForced && report.code == ExitCode::Findings))
    {
        report.document.reset();
        report.complaints.push_back(name + ": " + HeldBack(report.code));
    }
    else if (file)
    {
        if (report.isChanged)
        {
            file->Replace(*report.document);
        }
        report.document.reset();
    }
}

Report ReportOn(const std::string& name, const RunOptions& options, const Work& work)
{
    Report report;
    try
    {
        if (options.isInPlace)
        {
            FileInPlace file(name);
            const Document document(name, file.Read(options.reading.maxBytes), options.reading);
            report = work(document);
            Place(report, options, document.Name(), &file);
        }
        else
        {
            const Document document = Document::Load(name, options.reading);
            report = work(document);
            Place(report, options, document.Name(), nullptr);
        }
    }
    catch (const ToolError& error)
    {
        report.document.reset();
        report.Complain(error.code(), error.what());
    }
    catch (const std::exception& error)
    {
        report.document.reset();
        report.Complain(ExitCode::File, NameOfFile(name) + ": " + error.what());
    }
    return report;
}

/// Does the work on files, some of them ahead of the one that is printed next.
class Workers
{
public:
    Workers(const std::vector<std::string>& files, const RunOptions& options, const Work& work)
        : m_files(files), m_options(options), m_work(work), m_reports(files.size())
    {
        for (unsigned job = 0; job != options.jobs; ++job)
        {
            m_threads.emplace_back([this] { Run(); });
        }
    }

    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;

    ~Workers()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_next = m_files.size();
        }
        m_change.notify_all();
        for (std::thread& thread : m_threads)
        {
            thread.join();
        }
    }

    /// Waits for the report of a file; false if it is not there within a second.
    bool Take(std::size_t index, Report& report)
    {
        std::unique_lock lock(m_mutex);
        if (!m_change.wait_for(lock, std::chrono::seconds(1), [&] { return m_reports[index].has_value(); }))
        {
            return false;
        }
        report = std::move(*m_reports[index]);
        m_reports[index].reset();
        m_printed = index + 1;
        lock.unlock();
        m_change.notify_all();
        return true;
    }

private:
    static constexpr std::size_t AHEAD = 64; // at most so many reports wait for being printed

    void Run()
    {
        std::unique_lock lock(m_mutex);
        for (;;)
        {
            m_change.wait(lock, [this] { return m_next >= m_files.size() || m_next < m_printed + AHEAD; });
            if (m_next >= m_files.size())
            {
                return;
            }
            const std::size_t index = m_next++;
            lock.unlock();
            Report report = ReportOn(m_files[index], m_options, m_work);
            lock.lock();
            m_reports[index] = std::move(report);
            m_change.notify_all();
        }
    }

    const std::vector<std::string>& m_files;
    const RunOptions& m_options;
    const Work& m_work;
    std::mutex m_mutex;
    std::condition_variable m_change;
    std::vector<std::optional<Report>> m_reports;
    std::size_t m_next = 0;
    std::size_t m_printed = 0;
    std::vector<std::thread> m_threads;
};

/// A line on a terminal that says how far the work is, after the first second.
class Progress
{
public:
    Progress(std::size_t count, bool isQuiet) : m_count(count), m_isShown(!isQuiet && System::IsTerminal(stderr)) {}

    void Show(std::size_t done)
    {
        const auto now = std::chrono::steady_clock::now();
        if (m_isShown && now - m_last >= std::chrono::seconds(1))
        {
            std::fprintf(stderr, "\r%zu of %zu files", done, m_count);
            m_last = now;
            m_isThere = true;
        }
    }

    /// Makes room for what is printed otherwise.
    void Clear()
    {
        if (m_isThere)
        {
            std::fputs("\r\x1b[K", stderr);
            m_isThere = false;
        }
    }

private:
    std::size_t m_count;
    bool m_isShown;
    bool m_isThere = false;
    std::chrono::steady_clock::time_point m_last = std::chrono::steady_clock::now();
};

} // namespace

void Print(const Report& report)
{
    for (const std::string& complaint : report.complaints)
    {
        std::fputs((MessageText::PrintableLines(complaint) + "\n").c_str(), stderr);
    }
    WriteAll(stdout, report.out);
    WriteAll(stdout, report.document.value_or(std::string()));
}

void RunOnFiles(const std::vector<std::string>& files, const RunOptions& options, const Work& work, Report& report)
{
    Print(report);
    report.complaints.clear();
    // An end waits while a file is replaced, so that no temporary file is left. It is looked at between files.
    const System::DeferredEnd end(options.isInPlace);
    Progress progress(files.size(), options.isQuiet);
    const auto take = [&](const std::string& file, const Report& part)
    {
        if (part.HasText())
        {
            progress.Clear();
        }
        Print(part);
        if (options.whenDone)
        {
            options.whenDone(file, part);
        }
        report.Merge(part);
    };
    if (options.jobs < 2 || files.size() < 2)
    {
        for (std::size_t index = 0; index != files.size() && !end.IsAskedFor(); ++index)
        {
            progress.Show(index);
            take(files[index], ReportOn(files[index], options, work));
        }
        progress.Clear();
        return;
    }
    Workers workers(files, options, work);
    for (std::size_t index = 0; index != files.size() && !end.IsAskedFor(); ++index)
    {
        Report part;
        while (!workers.Take(index, part))
        {
            progress.Show(index);
        }
        progress.Show(index);
        take(files[index], part);
    }
    progress.Clear();
}

} // namespace Ombrel::EffectsTool
