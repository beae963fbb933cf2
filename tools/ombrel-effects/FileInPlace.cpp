#include "FileInPlace.h"

#include "TextFile.h"
#include "ToolError.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Ombrel::EffectsTool
{
namespace
{

[[noreturn]] void ThrowFailure(const std::string& file, const std::string& reason)
{
    throw ToolError(ExitCode::File, NameOfFile(file) + ": cannot be replaced: " + reason);
}

std::string FolderOf(const std::string& target)
{
    return target.substr(0, target.rfind('/') + 1);
}

bool AreSame(const timespec& a, const timespec& b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

// A temporary file with the new content. It is in the same folder as the target, because a file can only be renamed within its
// file system.
class Replacement
{
public:
    Replacement(const std::string& file, const std::string& target)
        : m_file(file), m_target(target), m_name(FolderOf(target) + ".ombrel-effects-XXXXXX"),
          m_descriptor(::mkostemp(m_name.data(), O_CLOEXEC))
    {
        if (m_descriptor < 0)
        {
            ThrowFailure(m_file, "no file can be created in its folder: " + LastError());
        }
    }

    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    ~Replacement()
    {
        ::close(m_descriptor);
        if (!m_isDone)
        {
            ::unlink(m_name.c_str());
        }
    }

    void Write(std::string_view text) const
    {
        while (!text.empty())
        {
            const ssize_t count = ::write(m_descriptor, text.data(), text.size());
            if (count < 0 && errno != EINTR)
            {
                ThrowFailure(m_file, LastError());
            }
            text.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
        }
    }

    void TakeOver(int original, const struct stat& state) const
    {
        // Only root may change the owner, and others may give the file to their own groups alone. A change of either may clear
        // bits of the mode, so the mode comes after them, and does not give the rights of the old group to another one.
        const bool isOwnerKept = ::fchown(m_descriptor, state.st_uid, state.st_gid) == 0;
        const bool isGroupKept = isOwnerKept || ::fchown(m_descriptor, static_cast<uid_t>(-1), state.st_gid) == 0;
        CopyAttributes(original);
        const mode_t mode = state.st_mode & (isOwnerKept ? 07777U : isGroupKept ? 0777U : 0707U);
        Check(::fchmod(m_descriptor, mode));
    }

    void Sync() const { Check(::fsync(m_descriptor)); }

    void Rename()
    {
        Check(::rename(m_name.c_str(), m_target.c_str()));
        m_isDone = true;
    }

private:
    void Check(int result) const
    {
        if (result != 0)
        {
            ThrowFailure(m_file, LastError());
        }
    }

    // Attributes that the system keeps to itself are left out.
    void CopyAttributes(int original) const
    {
        const ssize_t size = ::flistxattr(original, nullptr, 0);
        std::vector<char> names(size < 0 ? 0 : static_cast<std::size_t>(size));
        const ssize_t read = ::flistxattr(original, names.data(), names.size());
        const char* const end = names.data() + (read < 0 ? 0 : read);
        for (const char* name = names.data(); name < end; name += std::string_view(name).size() + 1)
        {
            std::vector<char> value(static_cast<std::size_t>(std::max<ssize_t>(::fgetxattr(original, name, nullptr, 0), 0)));
            const ssize_t length = ::fgetxattr(original, name, value.data(), value.size());
            if (length >= 0 && ::fsetxattr(m_descriptor, name, value.data(), static_cast<std::size_t>(length), 0) != 0 &&
                errno != EPERM && errno != EACCES && errno != ENOTSUP)
            {
                ThrowFailure(m_file, LastError());
            }
        }
    }

    std::string m_file;
    std::string m_target;
    std::string m_name;
    int m_descriptor;
    bool m_isDone = false;
};

// Not for ever, since signals wait too. A file system without locks is used without them.
constexpr std::chrono::seconds LONGEST_WAIT(30);

bool Lock(int descriptor)
{
    const auto end = std::chrono::steady_clock::now() + LONGEST_WAIT;
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
    {
        if (std::chrono::steady_clock::now() > end)
        {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

// Makes the rename survivea crash. A failure is ignored: the file then has its old or its new content.
void SyncFolderOf(const std::string& target)
{
    const int descriptor = ::open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0)
    {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

FileInPlace::FileInPlace(const std::string& file) : m_file(file)
{
    const std::unique_ptr<char, decltype(&std::free)> target(::realpath(file.c_str(), nullptr), &std::free);
    if (!target)
    {
        throw ToolError(ExitCode::File, NameOfFile(file) + ": cannot be read: " + LastError());
    }
    m_target = target.get();
    while (!Open())
    {
    }
}

FileInPlace::~FileInPlace()
{
    if (m_descriptor >= 0)
    {
        ::close(m_descriptor);
    }
}

// False if another run has replaced the file while this one waited for it. Opening does not wait for the writer of a pipe,
// since a pipe is refused.
bool FileInPlace::Open()
{
    m_descriptor = ::open(m_target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (m_descriptor < 0)
    {
        throw ToolError(ExitCode::File, NameOfFile(m_file) + ": cannot be read: " + LastError());
    }
    bool isThere = ::fstat(m_descriptor, &m_original) == 0;
    if (isThere && !S_ISREG(m_original.st_mode))
    {
        ::close(std::exchange(m_descriptor, -1)); // the destructor of an object that was never made does not run
        ThrowFailure(m_file, "it is not a regular file");
    }
    if (!Lock(m_descriptor))
    {
        ::close(std::exchange(m_descriptor, -1));
        ThrowFailure(m_file, "another run has been changing it for " + std::to_string(LONGEST_WAIT.count()) + " seconds");
    }
    isThere = isThere && ::fstat(m_descriptor, &m_original) == 0;
    if (isThere && HasChanged())
    {
        ::close(std::exchange(m_descriptor, -1));
        return false;
    }
    return true;
}

std::string FileInPlace::Read(std::size_t maxBytes) const
{
    return ReadDescriptor(m_descriptor, m_file, maxBytes);
}

bool FileInPlace::HasChanged() const
{
    struct stat now
    {
    };
    return ::stat(m_target.c_str(), &now) != 0 || now.st_dev != m_original.st_dev || now.st_ino != m_original.st_ino ||
           now.st_size != m_original.st_size || !AreSame(now.st_mtim, m_original.st_mtim) ||
           !AreSame(now.st_ctim, m_original.st_ctim);
}

void FileInPlace::Replace(std::string_view text) const
{
    Replacement replacement(m_file, m_target);
    replacement.Write(text);
    replacement.TakeOver(m_descriptor, m_original);
    replacement.Sync();
    if (HasChanged())
    {
        ThrowFailure(m_file, "it has changed since it was read");
    }
    replacement.Rename();
    SyncFolderOf(m_target);
}

} // namespace Ombrel::EffectsTool
