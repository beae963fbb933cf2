#include "Runner.h"

#include "FileInPlace.h"
#include "PropertyTreeJson/MessageText.h"
#include "TextFile.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <mutex>
#include <thread>

#include <unistd.h>

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
        throw ToolError(ExitCode::File, "<stdout>: cannot be written: " + LastError());
    }
}

// The document of a report goes to where it belongs, unless something would be lost.
void Place(Report& report, const RunOptions& options, const std::string& name, const FileInPlace* file)
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
            const FileInPlace file(name);
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
    Progress(std::size_t count, bool isQuiet) : m_count(count), m_isShown(!isQuiet && ::isatty(STDERR_FILENO) != 0) {}

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

// Signals that end the program wait while a file is replaced, so that no temporary file is left. They are looked at between
// files.
class DeferredSignals
{
public:
    explicit DeferredSignals(bool isNeeded)
    {
        ::sigemptyset(&m_signals);
        if (isNeeded)
        {
            for (const int signal : ENDING)
            {
                ::sigaddset(&m_signals, signal);
            }
        }
        ::pthread_sigmask(SIG_BLOCK, &m_signals, &m_before);
    }

    DeferredSignals(const DeferredSignals&) = delete;
    DeferredSignals& operator=(const DeferredSignals&) = delete;
    ~DeferredSignals() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

    bool HaveCome() const
    {
        sigset_t pending;
        ::sigpending(&pending);
        return std::ranges::any_of(ENDING, [&](int signal)
                                   { return ::sigismember(&pending, signal) == 1 && ::sigismember(&m_signals, signal) == 1; });
    }

private:
    static constexpr std::array<int, 3> ENDING{SIGINT, SIGTERM, SIGHUP};

    sigset_t m_signals;
    sigset_t m_before;
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
    const DeferredSignals signals(options.isInPlace);
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
        for (std::size_t index = 0; index != files.size() && !signals.HaveCome(); ++index)
        {
            progress.Show(index);
            take(files[index], ReportOn(files[index], options, work));
        }
        progress.Clear();
        return;
    }
    Workers workers(files, options, work);
    for (std::size_t index = 0; index != files.size() && !signals.HaveCome(); ++index)
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
