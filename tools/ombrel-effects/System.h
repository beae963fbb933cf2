#ifndef OMBREL_EFFECTS_TOOL_SYSTEM_H
#define OMBREL_EFFECTS_TOOL_SYSTEM_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// All that the program asks of the operating system beside the standard library. Each system has a source of its own.
///
/// Texts, names of files among them, are UTF-8 on Windows, and the bytes that the system has on others.
namespace Ombrel::EffectsTool::System
{

/// What the process has from its start to its end: streams without conversion of line ends, a console that shows UTF-8, and no
/// signal for a file that becomes too large, which then fails to be written. The console is left as it was found.
class Session
{
public:
    Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();
};

/// The words of the command line, the program's name first.
std::vector<std::string> Arguments(int argc, char** argv);

/// A terminal that knows escape sequences.
bool IsTerminal(std::FILE* stream);

/// A terminal that knows sequences for colours.
bool HasColours(std::FILE* stream);

/// To be called when output cannot be written: ends the program without a message if nobody reads it any more. Where a signal
/// does so earlier, this does nothing.
void EndIfNobodyReads();

/// What asks the program to end, such as Ctrl-C, waits as long as this lives.
class DeferredEnd
{
public:
    explicit DeferredEnd(bool isNeeded);
    DeferredEnd(const DeferredEnd&) = delete;
    DeferredEnd& operator=(const DeferredEnd&) = delete;
    ~DeferredEnd(); // which may end the program

    bool IsAskedFor() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

std::filesystem::path PathOf(const std::string& name);

/// Has '/' between the names of folders.
std::string NameOf(const std::filesystem::path& path);

/// The reason why the last call below failed in this thread.
std::string LastError();

/// A file that is open, or none if it could not be opened.
class File
{
public:
    static constexpr std::intptr_t NONE = -1;

    File() = default;
    explicit File(std::intptr_t handle) noexcept : m_handle(handle) {}
    File(File&& other) noexcept : m_handle(std::exchange(other.m_handle, NONE)) {}
    ~File() { Close(); }

    File& operator=(File&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    bool IsOpen() const noexcept { return m_handle != NONE; }
    void Close() noexcept;

    /// The number of bytes, which is 0 at the end; nothing on failure.
    std::optional<std::size_t> Read(char* buffer, std::size_t size) const;
    /// All or, on failure, a part.
    bool Write(std::string_view text) const;
    /// Makes durable what was written.
    bool Sync() const;

    std::intptr_t Handle() const noexcept { return m_handle; }

private:
    std::intptr_t m_handle = NONE;
};

File StandardInput();
File OpenToRead(const std::string& name);
/// Does not wait for the writer of a pipe.
File OpenToReplace(const std::string& name);
/// An existing file becomes empty.
File Create(const std::string& name);

/// What tells a file from another one, and from itself before a change.
struct FileState
{
    std::uint64_t volume = 0;
    std::uint64_t number = 0;
    std::uint64_t size = 0;
    std::array<std::int64_t, 2> modified{}; // seconds and a fraction, or the fraction alone
    std::array<std::int64_t, 2> changed{};  // also its name, owner and rights
    std::uint32_t owner = 0;
    std::uint32_t group = 0;
    std::uint32_t mode = 0; // or the attributes
    bool isRegular = false;
    bool isReadOnly = false; // where that also forbids another file in its place

    bool operator==(const FileState&) const = default;
};

std::optional<FileState> StateOf(const File& file);
std::optional<FileState> StateOf(const std::string& name);

/// The absolute name of an existing file without symbolic links; empty on failure.
std::string TargetOf(const std::string& name);

/// Keeps other runs of the program from a file. What the system cannot lock counts as locked.
class FileLock
{
public:
    FileLock() = default;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock() { Release(); }

    /// False if another run has the lock. Closing the file may release it.
    bool Try(const File& file, const FileState& state);
    void Release() noexcept;

private:
    std::intptr_t m_handle = 0;
};

/// A file with the new content of another, in the same folder, since a file takes the place of another in one step only within
/// its file system. It is removed unless it has taken the place.
class Replacement
{
public:
    Replacement(const std::string& target, const FileState& state);
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    ~Replacement();

    const File& Content() const noexcept { return m_file; }

    /// Takes over owner and rights as far as the system allows it, and what else is stored of the file.
    bool TakeOver(const File& original, const FileState& state) const;

    /// Where an open file cannot lose its name, this closes the original.
    bool TakePlaceOf(File& original);

private:
    std::string m_target;
    std::string m_name;
    File m_file;
    bool m_isDone = false;
};

} // namespace Ombrel::EffectsTool::System

#endif
