#include "AtomicFile.h"

#include "TextFile.h"
#include "ToolError.h"

#include <cerrno>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Ombrel::EffectsTool
{
namespace
{

[[noreturn]] void ThrowFailure(const std::string& file, const std::string& reason)
{
    throw ToolError(ExitCode::UsageOrFile, file + ": cannot be replaced: " + reason);
}

std::string TargetOf(const std::string& file)
{
    const std::unique_ptr<char, decltype(&std::free)> target(::realpath(file.c_str(), nullptr), &std::free);
    if (!target)
    {
        ThrowFailure(file, LastError());
    }
    return target.get();
}

// A temporary file with the new content. It is in the same folder as the target, because a file can only be renamed within its
// file system.
class Replacement
{
public:
    Replacement(const std::string& file, const std::string& target)
        : m_file(file), m_target(target), m_name(target.substr(0, target.rfind('/') + 1) + ".ombrel-effects-XXXXXX"),
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

    void Write(std::string_view text)
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

    void TakeOver(const struct stat& original)
    {
        // The mode is set after the owner, because a change of the owner may clear bits of the mode. Only root may change the
        // owner.
        const bool isOwnerKept = ::fchown(m_descriptor, original.st_uid, original.st_gid) == 0;
        const mode_t mode = original.st_mode & (isOwnerKept ? 07777U : 0777U);
        Check(::fchmod(m_descriptor, mode));
    }

    void Commit()
    {
        Check(::fsync(m_descriptor));
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

    std::string m_file;
    std::string m_target;
    std::string m_name;
    int m_descriptor;
    bool m_isDone = false;
};

// Makes the rename survive a crash. A failure is ignored: the file then has its old or its new content.
void SyncFolderOf(const std::string& target)
{
    const std::string folder = target.substr(0, target.rfind('/') + 1);
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0)
    {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

void ReplaceFile(const std::string& file, std::string_view text)
{
    const std::string target = TargetOf(file);
    struct stat original
    {
    };
    if (::stat(target.c_str(), &original) != 0)
    {
        ThrowFailure(file, LastError());
    }
    if (!S_ISREG(original.st_mode))
    {
        ThrowFailure(file, "it is not a regular file");
    }
    Replacement replacement(file, target);
    replacement.Write(text);
    replacement.TakeOver(original);
    replacement.Commit();
    SyncFolderOf(target);
}

} // namespace Ombrel::EffectsTool
