#include "ToolRunner.h"

#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>

namespace Ombrel
{
namespace
{

class Handle
{
public:
    Handle() = default;
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    Handle(Handle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    ~Handle() { Close(); }

    Handle& operator=(Handle&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    HANDLE Get() const { return m_handle; }

    void Close()
    {
        if (HANDLE closed = std::exchange(m_handle, nullptr))
        {
            ::CloseHandle(closed);
        }
    }

private:
    HANDLE m_handle = nullptr;
};

struct Pipe
{
    Handle read;
    Handle write;
};

Pipe NewPipe()
{
    HANDLE read = nullptr;
    HANDLE write = nullptr;
    if (::CreatePipe(&read, &write, nullptr, 0) == 0)
    {
        throw std::runtime_error("no pipe");
    }
    return {Handle(read), Handle(write)};
}

HANDLE Inherited(const Handle& handle)
{
    ::SetHandleInformation(handle.Get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    return handle.Get();
}

// A word as the rules of the command line ask for it: backslashes count before a quotation mark alone.
std::string Quoted(const std::string& word)
{
    std::string text = "\"";
    std::size_t backslashes = 0;
    for (const char letter : word + "\"")
    {
        text.append(letter == '"' ? backslashes : 0, '\\');
        backslashes = letter == '\\' ? backslashes + 1 : 0;
        text += letter == '"' ? "\\\"" : std::string(1, letter);
    }
    text.resize(text.size() - 2);
    return text + '"';
}

std::wstring Wide(const std::string& text)
{
    return std::filesystem::path(std::u8string(text.begin(), text.end())).wstring();
}

std::string ReadAll(const Handle& handle)
{
    std::string text;
    std::vector<char> buffer(65536);
    DWORD count = 0;
    while (::ReadFile(handle.Get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) != 0)
    {
        text.append(buffer.data(), count);
    }
    return text;
}

} // namespace

ToolResult RunTool(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                   const ToolSurroundings& surroundings)
{
    std::string line = Quoted(OMBREL_EFFECTS_PROGRAM);
    for (const std::string& argument : arguments)
    {
        line += " " + Quoted(argument);
    }
    std::wstring words = Wide(line);

    Pipe in = NewPipe();
    Pipe out = NewPipe();
    Pipe err = NewPipe();
    PROCESS_INFORMATION started{};
    {
        static std::mutex mutex; // no other program that is started gets these ends
        const std::lock_guard lock(mutex);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = Inherited(in.read);
        start.hStdOutput = Inherited(out.write);
        start.hStdError = Inherited(err.write);
        if (::CreateProcessW(nullptr, words.data(), nullptr, nullptr, TRUE, 0, nullptr, folder.c_str(), &start, &started) == 0)
        {
            throw std::runtime_error("the program cannot be started");
        }
        in.read.Close();
        out.write.Close();
        err.write.Close();
    }
    const Handle process(started.hProcess);
    Handle(started.hThread).Close();

    // All three at once, since the program may wait on any of them. It need not read its input.
    ToolResult result{-1, {}, {}};
    std::thread reader([&] { result.out = ReadAll(out.read); });
    std::thread errors([&] { result.err = ReadAll(err.read); });
    DWORD count = 0;
    ::WriteFile(in.write.Get(), surroundings.input.data(), static_cast<DWORD>(surroundings.input.size()), &count, nullptr);
    in.write.Close();
    reader.join();
    errors.join();
    ::WaitForSingleObject(process.Get(), INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.Get(), &code);
    result.code = static_cast<int>(code);
    return result;
}

} // namespace Ombrel
