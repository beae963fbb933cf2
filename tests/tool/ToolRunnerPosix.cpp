#include "ToolRunner.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <iterator>
#include <stdexcept>

#include <fcntl.h>
#include <linux/capability.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Ombrel
{
namespace
{

struct Pipe
{
    Pipe()
    {
        if (::pipe2(ends, O_CLOEXEC) != 0)
        {
            throw std::runtime_error("no pipe");
        }
    }

    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    ~Pipe()
    {
        Close(0);
        Close(1);
    }

    void Close(int end)
    {
        if (ends[end] >= 0)
        {
            ::close(ends[end]);
            ends[end] = -1;
        }
    }

    int ends[2];
};

// Between fork and exec: only system calls.
[[noreturn]] void Become(char* const* arguments, const char* folder, const ToolSurroundings& surroundings, Pipe* pipes)
{
    const char* output = surroundings.outputFile.c_str();
    const int outputEnd = *output ? ::open(output, O_WRONLY) : pipes[1].ends[1];
    bool isFine = ::chdir(folder) == 0 && ::dup2(pipes[0].ends[0], 0) == 0 && ::dup2(outputEnd, 1) == 1 &&
                  ::dup2(pipes[2].ends[1], 2) == 2;
    if (surroundings.maxFileSize)
    {
        const rlimit limit{*surroundings.maxFileSize, *surroundings.maxFileSize};
        isFine = isFine && ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    if (surroundings.obeysFileModes && ::geteuid() == 0)
    {
        isFine = isFine && ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0) == 0;
    }
    if (isFine)
    {
        ::execv(arguments[0], arguments);
    }
    ::_exit(127);
}

// Feeds and drains all three at once, since the program may wait on any of them.
void Converse(Pipe* pipes, std::string_view input, std::string& out, std::string& err)
{
    std::array<char, 65536> buffer;
    while (pipes[0].ends[1] >= 0 || pipes[1].ends[0] >= 0 || pipes[2].ends[0] >= 0)
    {
        if (input.empty())
        {
            pipes[0].Close(1);
        }
        pollfd waiting[] = {{pipes[0].ends[1], POLLOUT, 0}, {pipes[1].ends[0], POLLIN, 0}, {pipes[2].ends[0], POLLIN, 0}};
        ::poll(waiting, 3, -1);
        if (waiting[0].revents != 0)
        {
            const ssize_t count = ::write(waiting[0].fd, input.data(), std::min<std::size_t>(input.size(), PIPE_BUF));
            count < 0 ? pipes[0].Close(1) : input.remove_prefix(static_cast<std::size_t>(count));
        }
        for (int i = 1; i < 3; ++i)
        {
            if (waiting[i].revents != 0)
            {
                const ssize_t count = ::read(waiting[i].fd, buffer.data(), buffer.size());
                count <= 0 ? pipes[i].Close(0)
                           : static_cast<void>((i == 1 ? out : err).append(buffer.data(), static_cast<std::size_t>(count)));
            }
        }
    }
}

} // namespace

ToolResult RunTool(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                   const ToolSurroundings& surroundings)
{
    std::signal(SIGPIPE, SIG_IGN); // the program need not read its input
    std::vector<std::string> words{OMBREL_EFFECTS_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    std::ranges::transform(words, std::back_inserter(pointers), [](std::string& word) { return word.data(); });
    pointers.push_back(nullptr);

    Pipe pipes[3];
    const pid_t child = ::fork();
    if (child == 0)
    {
        std::signal(SIGPIPE, SIG_DFL);
        Become(pointers.data(), folder.c_str(), surroundings, pipes);
    }
    pipes[0].Close(0);
    pipes[1].Close(1);
    pipes[2].Close(1);
    ToolResult result{-1, {}, {}};
    Converse(pipes, surroundings.input, result.out, result.err);
    int status = 0;
    ::waitpid(child, &status, 0);
    result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return result;
}

} // namespace Ombrel
