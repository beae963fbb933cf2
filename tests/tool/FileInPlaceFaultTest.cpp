#include "FileInPlaceFixture.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <ostream>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

// On Windows no linker puts calls in the place of the system's own, and there are no signals that wait, no modes, and no
// extended attributes. The rights and attributes that it has are kept by other calls.

// Calls of the system that fail or end the program in between. The linker puts these in the place of the system's own.
namespace
{

struct Fault
{
    const char* call = "";
    int which = 0;  // the first call is 1
    int error = 0;  // as in `errno`; or
    int signal = 0; // or neither: only a part is written
};

Fault t_fault;
int t_calls = 0;

// Whether the call comes to the fault. It then fails, unless a signal came that waits.
bool IsAt(const char* call)
{
    if (std::strcmp(call, t_fault.call) != 0 || ++t_calls != t_fault.which)
    {
        return false;
    }
    if (t_fault.signal != 0)
    {
        ::raise(t_fault.signal);
        return false;
    }
    errno = t_fault.error;
    return true;
}

} // namespace

extern "C"
{
    ssize_t __real_write(int descriptor, const void* data, size_t size);
    int __real_mkostemp(char* name, int flags);
    int __real_mkostemp64(char* name, int flags);
    int __real_fchown(int descriptor, uid_t user, gid_t group);
    int __real_fchmod(int descriptor, mode_t mode);
    int __real_fsync(int descriptor);
    int __real_rename(const char* from, const char* to);

    ssize_t __wrap_write(int descriptor, const void* data, size_t size)
    {
        if (IsAt("write"))
        {
            return t_fault.error != 0 ? -1 : __real_write(descriptor, data, size / 2);
        }
        return __real_write(descriptor, data, size);
    }

    int __wrap_mkostemp(char* name, int flags)
    {
        return IsAt("mkostemp") ? -1 : __real_mkostemp(name, flags);
    }

    // Its name where files of a 32-bit program may be large.
    int __wrap_mkostemp64(char* name, int flags)
    {
        return IsAt("mkostemp") ? -1 : __real_mkostemp64(name, flags);
    }

    int __wrap_fchown(int descriptor, uid_t user, gid_t group)
    {
        return IsAt("fchown") ? -1 : __real_fchown(descriptor, user, group);
    }

    int __wrap_fchmod(int descriptor, mode_t mode)
    {
        return IsAt("fchmod") ? -1 : __real_fchmod(descriptor, mode);
    }
    int __wrap_fsync(int descriptor)
    {
        return IsAt("fsync") ? -1 : __real_fsync(descriptor);
    }
    int __wrap_rename(const char* from, const char* to)
    {
        return IsAt("rename") ? -1 : __real_rename(from, to);
    }
}

namespace Ombrel::EffectsTool
{
namespace
{

// How a process ends that does this: its exit code, or minus the signal.
int InAnotherProcess(const std::function<void()>& action)
{
    const pid_t child = ::fork();
    if (child == 0)
    {
        action();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

class FileInPlaceOnPosix : public FileInPlaceTest
{
protected:
    ~FileInPlaceOnPosix() override { t_fault = {}; }

    std::string Replace(const Fault& fault = {}) const
    {
        const std::string message = FileInPlaceTest::Replace(
            [&fault]
            {
                t_calls = 0;
                t_fault = fault;
            });
        t_fault = {};
        return message;
    }
};

struct FaultCase
{
    const char* call;
    int which;
    bool isTolerated; // then the file is replaced all the same
};

void PrintTo(const FaultCase& fault, std::ostream* out)
{
    *out << fault.call << " " << fault.which;
}

class FileInPlaceFault : public FileInPlaceOnPosix, public testing::WithParamInterface<FaultCase>
{
};

TEST_P(FileInPlaceFault, LeavesTheWholeOldOrTheWholeNewContentAndNothingElse)
{
    for (const int error : {ENOSPC, EIO, EACCES, EDQUOT, EROFS})
    {
        Write(OLD);
        const std::string message = Replace({GetParam().call, GetParam().which, error});
        EXPECT_EQ(message.empty(), GetParam().isTolerated) << message;
        EXPECT_EQ(Content(), GetParam().isTolerated ? NEW : OLD);
        EXPECT_EQ(Files(), 1u);
    }
}

TEST_P(FileInPlaceFault, OfASignalThatWaitsReplacesTheFileFirst)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
    {
        Write(OLD);
        EXPECT_EQ(InAnotherProcess(
                      [&]
                      {
                          sigset_t signals;
                          ::sigemptyset(&signals);
                          ::sigaddset(&signals, signal);
                          ::sigprocmask(SIG_BLOCK, &signals, nullptr);
                          Replace({GetParam().call, GetParam().which, 0, signal});
                          ::sigprocmask(SIG_UNBLOCK, &signals, nullptr);
                      }),
                  -signal);
        EXPECT_EQ(Content(), NEW);
        EXPECT_EQ(Files(), 1u);
    }
}

// Nothing cleans up behind a process that is killed, but no reader finds a part of the content.
TEST_P(FileInPlaceFault, OfAKillLeavesTheWholeOldOrTheWholeNewContent)
{
    EXPECT_EQ(InAnotherProcess([this] { Replace({GetParam().call, GetParam().which, 0, SIGKILL}); }), -SIGKILL);
    const bool isRenamed = GetParam().which == 2; // the folder is made durable last
    EXPECT_EQ(Content(), isRenamed ? NEW : OLD);
}

INSTANTIATE_TEST_SUITE_P(Calls, FileInPlaceFault,
                         testing::Values(FaultCase{"mkostemp", 1, false}, FaultCase{"write", 1, false},
                                         FaultCase{"fchown", 1, true}, FaultCase{"fchmod", 1, false},
                                         FaultCase{"fsync", 1, false}, FaultCase{"rename", 1, false},
                                         FaultCase{"fsync", 2, true}));

TEST_F(FileInPlaceOnPosix, IsReplacedByManyShortWrites)
{
    EXPECT_EQ(Replace({"write", 1, 0}), "");
    EXPECT_EQ(Content(), NEW);
}

// On Windows a file that is removed stays until all have closed it.
TEST_F(FileInPlaceOnPosix, IsNotMadeAnewIfItWasRemoved)
{
    EXPECT_EQ(FileInPlaceTest::Replace([this] { std::filesystem::remove(File()); }),
              File() + ": cannot be replaced: it has changed since it was read");
    EXPECT_EQ(Files(), 0u);
}

// On Windows no file takes the place of this one while it is read.
TEST_F(FileInPlaceOnPosix, IsLeftAloneIfItsModeHasChangedOrAnotherFileIsInItsPlace)
{
    const std::vector<std::function<void()>> changes{
        [this] { ::chmod(File().c_str(), 0600); },
        [this]
        {
            std::ofstream(Folder() / "other") << OLD;
            std::filesystem::rename(Folder() / "other", File());
        },
    };
    for (const auto& change : changes)
    {
        EXPECT_EQ(FileInPlaceTest::Replace(
                      [&change]
                      {
                          std::this_thread::sleep_for(std::chrono::milliseconds(20)); // the clock of files is coarse
                          change();
                      }),
                  File() + ": cannot be replaced: it has changed since it was read");
        EXPECT_EQ(Content(), OLD);
        EXPECT_EQ(Files(), 1u);
    }
}

TEST_F(FileInPlaceOnPosix, KeepsExtendedAttributes)
{
    if (::setxattr(File().c_str(), "user.ombrel", "kept", 4, 0) != 0)
    {
        GTEST_SKIP() << "this file system has no extended attributes: " << std::strerror(errno);
    }
    EXPECT_EQ(Replace(), "");
    std::array<char, 16> value{};
    EXPECT_EQ(::getxattr(File().c_str(), "user.ombrel", value.data(), value.size()), 4);
    EXPECT_STREQ(value.data(), "kept");
}

TEST_F(FileInPlaceOnPosix, KeepsTheGroupWhereTheOwnerCannotBeKept)
{
    constexpr uid_t other = 12345;
    constexpr gid_t group = 23456;
    if (::geteuid() != 0)
    {
        GTEST_SKIP() << "only root may give a file to another group";
    }
    ASSERT_EQ(::chown(File().c_str(), 0, group), 0);
    ASSERT_EQ(::chmod(File().c_str(), 0664), 0);
    ASSERT_EQ(::chmod(Folder().c_str(), 0777), 0);
    EXPECT_EQ(InAnotherProcess(
                  [this]
                  {
                      const gid_t groups[] = {group};
                      const bool isOther = ::setgroups(1, groups) == 0 && ::setresgid(other, other, other) == 0 &&
                                           ::setresuid(other, other, other) == 0;
                      ::_exit(isOther && Replace().empty() ? 0 : 1);
                  }),
              0);
    struct stat state
    {
    };
    ASSERT_EQ(::stat(File().c_str(), &state), 0);
    EXPECT_EQ(state.st_uid, other);
    EXPECT_EQ(state.st_gid, group);
    EXPECT_EQ(state.st_mode & 07777U, 0664U);

    // In a group that the owner is not in, nobody gets the rights of the old one.
    ASSERT_EQ(::chown(File().c_str(), 0, 34567), 0);
    Write(OLD);
    EXPECT_EQ(InAnotherProcess(
                  [this]
                  {
                      const bool isOther = ::setgroups(0, nullptr) == 0 && ::setresgid(other, other, other) == 0 &&
                                           ::setresuid(other, other, other) == 0;
                      ::_exit(isOther && Replace().empty() ? 0 : 1);
                  }),
              0);
    ASSERT_EQ(::stat(File().c_str(), &state), 0);
    EXPECT_EQ(state.st_gid, other);
    EXPECT_EQ(state.st_mode & 07777U, 0604U);
}

} // namespace
} // namespace Ombrel::EffectsTool
