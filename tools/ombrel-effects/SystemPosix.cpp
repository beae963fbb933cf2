#include "System.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Ombrel::EffectsTool::System
{
namespace
{

constexpr std::array<int, 3> ENDING{SIGINT, SIGTERM, SIGHUP};

int DescriptorOf(const File& file)
{
    return static_cast<int>(file.Handle());
}

std::string FolderOf(const std::string& target)
{
    return target.substr(0, target.rfind('/') + 1);
}

FileState Converted(const struct stat& state)
{
    return {.volume = state.st_dev,
            .number = state.st_ino,
            .size = static_cast<std::uint64_t>(state.st_size),
            .modified = {state.st_mtim.tv_sec, state.st_mtim.tv_nsec},
            .changed = {state.st_ctim.tv_sec, state.st_ctim.tv_nsec},
            .owner = state.st_uid,
            .group = state.st_gid,
            .mode = state.st_mode,
            .isRegular = S_ISREG(state.st_mode)};
}

// Attributes that the system keeps to itself are left out.
bool CopyAttributes(int from, int to)
{
    const ssize_t size = ::flistxattr(from, nullptr, 0);
    std::vector<char> names(size < 0 ? 0 : static_cast<std::size_t>(size));
    const ssize_t read = ::flistxattr(from, names.data(), names.size());
    const char* const end = names.data() + (read < 0 ? 0 : read);
    for (const char* name = names.data(); name < end; name += std::string_view(name).size() + 1)
    {
        std::vector<char> value(static_cast<std::size_t>(std::max<ssize_t>(::fgetxattr(from, name, nullptr, 0), 0)));
        const ssize_t length = ::fgetxattr(from, name, value.data(), value.size());
        if (length >= 0 && ::fsetxattr(to, name, value.data(), static_cast<std::size_t>(length), 0) != 0 && errno != EPERM &&
            errno != EACCES && errno != ENOTSUP)
        {
            return false;
        }
    }
    return true;
}

// Makes the rename survive a crash. A failure is ignored: the file then has its old or its new content.
void SyncFolder(const std::string& folder)
{
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0)
    {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

Session::Session()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

Session::~Session() = default;

std::vector<std::string> Arguments(int argc, char** argv)
{
    return {argv, argv + argc};
}

bool IsTerminal(std::FILE* stream)
{
    return ::isatty(::fileno(stream)) != 0;
}

bool HasColours(std::FILE* stream)
{
    const char* const terminal = std::getenv("TERM"); // NOLINT(concurrency-mt-unsafe): before any thread starts
    return IsTerminal(stream) && terminal && std::string_view(terminal) != "dumb";
}

void EndIfNobodyReads() {}

struct DeferredEnd::State
{
    sigset_t deferred;
    sigset_t before;
};

DeferredEnd::DeferredEnd(bool isNeeded) : m_state(std::make_unique<State>())
{
    ::sigemptyset(&m_state->deferred);
    if (isNeeded)
    {
        for (const int signal : ENDING)
        {
            ::sigaddset(&m_state->deferred, signal);
        }
    }
    ::pthread_sigmask(SIG_BLOCK, &m_state->deferred, &m_state->before);
}

DeferredEnd::~DeferredEnd()
{
    ::pthread_sigmask(SIG_SETMASK, &m_state->before, nullptr);
}

bool DeferredEnd::IsAskedFor() const
{
    sigset_t pending;
    ::sigpending(&pending);
    return std::ranges::any_of(
        ENDING,
        [&](int signal) { return ::sigismember(&pending, signal) == 1 && ::sigismember(&m_state->deferred, signal) == 1; });
}

std::filesystem::path PathOf(const std::string& name)
{
    return name;
}

std::string NameOf(const std::filesystem::path& path)
{
    return path.string();
}

std::string LastError()
{
    return std::generic_category().message(errno);
}

void File::Close() noexcept
{
    if (IsOpen())
    {
        ::close(static_cast<int>(std::exchange(m_handle, NONE)));
    }
}

File StandardInput()
{
    return File(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0));
}

File OpenToRead(const std::string& name)
{
    return File(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
}

File OpenToReplace(const std::string& name)
{
    return File(::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
}

File Create(const std::string& name)
{
    return File(::open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
}

std::optional<std::size_t> File::Read(char* buffer, std::size_t size) const
{
    for (;;)
    {
        const ssize_t count = ::read(DescriptorOf(*this), buffer, size);
        if (count >= 0)
        {
            return static_cast<std::size_t>(count);
        }
        if (errno != EINTR)
        {
            return std::nullopt;
        }
    }
}

bool File::Write(std::string_view text) const
{
    while (!text.empty())
    {
        const ssize_t count = ::write(DescriptorOf(*this), text.data(), text.size());
        if (count < 0 && errno != EINTR)
        {
            return false;
        }
        text.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    return true;
}

bool File::Sync() const
{
    return ::fsync(DescriptorOf(*this)) == 0;
}

std::optional<FileState> StateOf(const File& file)
{
    struct stat state
    {
    };
    return ::fstat(DescriptorOf(file), &state) == 0 ? std::optional(Converted(state)) : std::nullopt;
}

std::optional<FileState> StateOf(const std::string& name)
{
    struct stat state
    {
    };
    return ::stat(name.c_str(), &state) == 0 ? std::optional(Converted(state)) : std::nullopt;
}

std::string TargetOf(const std::string& name)
{
    const std::unique_ptr<char, decltype(&std::free)> target(::realpath(name.c_str(), nullptr), &std::free);
    return target ? target.get() : "";
}

bool FileLock::Try(const File& file, const FileState&)
{
    return ::flock(DescriptorOf(file), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void FileLock::Release() noexcept
{
    m_handle = 0; // closing the file releases the lock
}

Replacement::Replacement(const std::string& target, const FileState&)
    : m_target(target), m_name(FolderOf(target) + ".ombrel-effects-XXXXXX"), m_file(::mkostemp(m_name.data(), O_CLOEXEC))
{
}

Replacement::~Replacement()
{
    if (m_file.IsOpen() && !m_isDone)
    {
        ::unlink(m_name.c_str());
    }
}

bool Replacement::TakeOver(const File& original, const FileState& state) const
{
    // Only root may change the owner, and others may give the file to their own groups alone. A change of either may clear bits
    // of the mode, so the mode comes after them, and does not give the rights of the old group to another one.
    const int descriptor = DescriptorOf(m_file);
    const bool isOwnerKept = ::fchown(descriptor, state.owner, state.group) == 0;
    const bool isGroupKept = isOwnerKept || ::fchown(descriptor, static_cast<uid_t>(-1), state.group) == 0;
    const mode_t mode = state.mode & (isOwnerKept ? 07777U : isGroupKept ? 0777U : 0707U);
    return CopyAttributes(DescriptorOf(original), descriptor) && ::fchmod(descriptor, mode) == 0;
}

bool Replacement::TakePlaceOf(File&)
{
    m_isDone = ::rename(m_name.c_str(), m_target.c_str()) == 0;
    if (m_isDone)
    {
        SyncFolder(FolderOf(m_target));
    }
    return m_isDone;
}

} // namespace Ombrel::EffectsTool::System
