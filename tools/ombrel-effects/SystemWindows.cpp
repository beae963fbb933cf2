#include "System.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <random>
#include <stdexcept>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <aclapi.h>
#include <shellapi.h>

namespace Ombrel::EffectsTool::System
{
namespace
{

HANDLE HandleOf(const File& file)
{
    return reinterpret_cast<HANDLE>(file.Handle()); // NOLINT(performance-no-int-to-ptr): a handle is a number
}

File FileOf(HANDLE handle)
{
    return File(reinterpret_cast<std::intptr_t>(handle));
}

std::wstring Wide(std::string_view text)
{
    const auto size = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrow(std::wstring_view wide)
{
    const auto size = static_cast<int>(wide.size());
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), length, nullptr, nullptr);
    return text;
}

// What a function of the system writes that is asked for the size first; empty on failure. `write` takes a buffer and its size,
// and gives the size that it needs with the null character, or without it what it has written.
template <typename Write> std::wstring Written(const Write& write)
{
    std::wstring text(write(nullptr, 0), L'\0');
    text.resize(write(text.data(), static_cast<DWORD>(text.size())));
    return text;
}

std::wstring FullName(const std::wstring& name)
{
    return Written([&name](wchar_t* buffer, DWORD size) { return ::GetFullPathNameW(name.c_str(), size, buffer, nullptr); });
}

// The name as the system wants it: long ones are absolute and have a prefix.
std::wstring SystemName(const std::string& name)
{
    constexpr std::size_t shortest = MAX_PATH - 12; // at which a name is long; a folder has room for a name in it
    std::wstring wide = Wide(name);
    const std::wstring full = FullName(wide);
    if (full.size() < shortest || full.starts_with(L"\\\\?\\"))
    {
        return wide;
    }
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

constexpr DWORD FOLDER_REFUSED = 336; // ERROR_DIRECTORY_NOT_SUPPORTED, which older headers do not have

bool IsFolder(const std::wstring& name)
{
    const DWORD attributes = ::GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Other programs may read, replace and remove the file meanwhile.
File Open(const std::wstring& name, DWORD access, DWORD creation, DWORD flags = FILE_ATTRIBUTE_NORMAL)
{
    constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    File file = FileOf(::CreateFileW(name.c_str(), access, shared, nullptr, creation, flags, nullptr));
    if (!file.IsOpen() && ::GetLastError() == ERROR_ACCESS_DENIED && IsFolder(name))
    {
        ::SetLastError(FOLDER_REFUSED);
    }
    return file;
}

// The console as it was found. Another thread puts it back when the user ends the program.
class Console
{
public:
    void TakeOver()
    {
        m_outputPage = ::GetConsoleOutputCP();
        m_inputPage = ::GetConsoleCP();
        ::SetConsoleOutputCP(CP_UTF8);
        ::SetConsoleCP(CP_UTF8);
        for (Stream& stream : m_streams)
        {
            const HANDLE handle = ::GetStdHandle(stream.which);
            stream.isConsole = ::GetConsoleMode(handle, &stream.mode) != 0;
            ::SetConsoleMode(handle, stream.mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
        }
    }

    void Restore() const
    {
        for (const Stream& stream : m_streams)
        {
            if (stream.isConsole)
            {
                ::SetConsoleMode(::GetStdHandle(stream.which), stream.mode);
            }
        }
        ::SetConsoleOutputCP(m_outputPage);
        ::SetConsoleCP(m_inputPage);
    }

private:
    struct Stream
    {
        DWORD which;
        DWORD mode = 0;
        bool isConsole = false;
    };

    UINT m_outputPage = 0;
    UINT m_inputPage = 0;
    std::array<Stream, 2> m_streams{{{STD_OUTPUT_HANDLE}, {STD_ERROR_HANDLE}}};
};

Console t_console;
std::atomic<bool> t_isEndDeferred = false;
std::atomic<bool> t_isEndAskedFor = false;

[[noreturn]] void End(UINT code)
{
    t_console.Restore();
    ::ExitProcess(code);
}

// Runs in a thread of its own.
BOOL WINAPI OnEndAskedFor(DWORD event)
{
    t_isEndAskedFor = true;
    if (!t_isEndDeferred)
    {
        t_console.Restore();
        return FALSE; // the system ends the program
    }
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
    {
        ::Sleep(INFINITE); // the system ends the program when this returns
    }
    return TRUE;
}

template <typename Info> Info InfoOf(const File& file, FILE_INFO_BY_HANDLE_CLASS kind, bool& isFine)
{
    Info info{};
    isFine = isFine && ::GetFileInformationByHandleEx(HandleOf(file), kind, &info, sizeof info) != 0;
    return info;
}

bool CopyRights(const File& from, const File& to)
{
    DWORD flags = 0;
    if (::GetVolumeInformationByHandleW(HandleOf(from), nullptr, 0, nullptr, nullptr, &flags, nullptr, 0) == 0)
    {
        return false;
    }
    if ((flags & FILE_PERSISTENT_ACLS) == 0)
    {
        return true;
    }
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    DWORD error = ::GetSecurityInfo(HandleOf(from), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list, nullptr,
                                    &descriptor);
    if (error == ERROR_SUCCESS)
    {
        SECURITY_DESCRIPTOR_CONTROL control = 0;
        DWORD revision = 0;
        ::GetSecurityDescriptorControl(descriptor, &control, &revision);
        const DWORD inheritance =
            (control & SE_DACL_PROTECTED) != 0 ? PROTECTED_DACL_SECURITY_INFORMATION : UNPROTECTED_DACL_SECURITY_INFORMATION;
        error = ::SetSecurityInfo(HandleOf(to), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheritance, nullptr, nullptr, list,
                                  nullptr);
        ::LocalFree(descriptor);
    }
    ::SetLastError(error);
    return error == ERROR_SUCCESS;
}

std::wstring RandomLetters()
{
    constexpr std::wstring_view letters = L"abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> index(0, letters.size() - 1);
    std::wstring text(8, L'\0');
    std::ranges::generate(text, [&] { return letters[index(random)]; });
    return text;
}

} // namespace

Session::Session()
{
    for (std::FILE* const stream : {stdin, stdout, stderr})
    {
        ::_setmode(::_fileno(stream), _O_BINARY);
    }
    t_console.TakeOver();
    ::SetConsoleCtrlHandler(&OnEndAskedFor, TRUE);
}

Session::~Session()
{
    std::fflush(nullptr);
    t_console.Restore();
}

std::vector<std::string> Arguments(int, char**)
{
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&::LocalFree)> words(::CommandLineToArgvW(::GetCommandLineW(), &count),
                                                                  &::LocalFree);
    std::vector<std::string> texts;
    std::transform(words.get(), words.get() + count, std::back_inserter(texts), &Narrow);
    return texts;
}

bool IsTerminal(std::FILE* stream)
{
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream))); // NOLINT(performance-no-int-to-ptr)
    DWORD mode = 0;
    return ::GetConsoleMode(handle, &mode) != 0 && (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

bool HasColours(std::FILE* stream)
{
    return IsTerminal(stream);
}

void EndIfNobodyReads()
{
    const DWORD error = ::GetLastError();
    if (error == ERROR_NO_DATA || error == ERROR_BROKEN_PIPE)
    {
        End(error);
    }
}

struct DeferredEnd::State
{
};

DeferredEnd::DeferredEnd(bool isNeeded)
{
    t_isEndDeferred = isNeeded;
}

DeferredEnd::~DeferredEnd()
{
    const bool isAskedFor = IsAskedFor();
    t_isEndDeferred = false;
    if (isAskedFor)
    {
        End(static_cast<UINT>(STATUS_CONTROL_C_EXIT));
    }
}

bool DeferredEnd::IsAskedFor() const
{
    return t_isEndDeferred && t_isEndAskedFor;
}

std::filesystem::path PathOf(const std::string& name)
{
    return Wide(name);
}

std::string NameOf(const std::filesystem::path& path)
{
    return Narrow(path.generic_wstring());
}

// In the words that other systems have, where the error is one that they know.
std::string LastError()
{
    const DWORD last = ::GetLastError();
    const std::error_code error(static_cast<int>(last), std::system_category());
    const std::error_condition condition =
        last == FOLDER_REFUSED ? std::make_error_condition(std::errc::is_a_directory) : error.default_error_condition();
    return condition.category() == std::generic_category() ? condition.message() : error.message();
}

void File::Close() noexcept
{
    if (IsOpen())
    {
        ::CloseHandle(HandleOf(*this));
        m_handle = NONE;
    }
}

File StandardInput()
{
    HANDLE copy = INVALID_HANDLE_VALUE;
    ::DuplicateHandle(::GetCurrentProcess(), ::GetStdHandle(STD_INPUT_HANDLE), ::GetCurrentProcess(), &copy, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    return FileOf(copy);
}

File OpenToRead(const std::string& name)
{
    return Open(SystemName(name), GENERIC_READ, OPEN_EXISTING);
}

File OpenToReplace(const std::string& name)
{
    return Open(SystemName(name), GENERIC_READ, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS); // folders too, to be refused
}

File Create(const std::string& name)
{
    return Open(SystemName(name), GENERIC_WRITE, CREATE_ALWAYS);
}

// The writer's end of a pipe is closed where a file ends.
std::optional<std::size_t> File::Read(char* buffer, std::size_t size) const
{
    DWORD count = 0;
    const auto most = static_cast<DWORD>(std::min<std::size_t>(size, 1U << 30U));
    const bool isFine =
        ::ReadFile(HandleOf(*this), buffer, most, &count, nullptr) != 0 || ::GetLastError() == ERROR_BROKEN_PIPE;
    return isFine ? std::optional<std::size_t>(count) : std::nullopt;
}

bool File::Write(std::string_view text) const
{
    while (!text.empty())
    {
        DWORD count = 0;
        const auto most = static_cast<DWORD>(std::min<std::size_t>(text.size(), 1U << 30U));
        if (::WriteFile(HandleOf(*this), text.data(), most, &count, nullptr) == 0)
        {
            return false;
        }
        text.remove_prefix(count);
    }
    return true;
}

bool File::Sync() const
{
    return ::FlushFileBuffers(HandleOf(*this)) != 0;
}

std::optional<FileState> StateOf(const File& file)
{
    if (::GetFileType(HandleOf(file)) != FILE_TYPE_DISK)
    {
        return FileState();
    }
    BY_HANDLE_FILE_INFORMATION identity{};
    bool isFine = ::GetFileInformationByHandle(HandleOf(file), &identity) != 0;
    const auto times = InfoOf<FILE_BASIC_INFO>(file, FileBasicInfo, isFine);
    const auto size = InfoOf<FILE_STANDARD_INFO>(file, FileStandardInfo, isFine);
    if (!isFine)
    {
        return std::nullopt;
    }
    return FileState{.volume = identity.dwVolumeSerialNumber,
                     .number = std::uint64_t{identity.nFileIndexHigh} << 32U | identity.nFileIndexLow,
                     .size = static_cast<std::uint64_t>(size.EndOfFile.QuadPart),
                     .modified = {times.LastWriteTime.QuadPart},
                     .changed = {times.ChangeTime.QuadPart},
                     .mode = times.FileAttributes,
                     .isRegular = size.Directory == 0,
                     .isReadOnly = (times.FileAttributes & FILE_ATTRIBUTE_READONLY) != 0};
}

std::optional<FileState> StateOf(const std::string& name)
{
    const File file = Open(SystemName(name), FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    return file.IsOpen() ? StateOf(file) : std::nullopt;
}

std::string TargetOf(const std::string& name)
{
    const File file = Open(SystemName(name), FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (!file.IsOpen())
    {
        return "";
    }
    std::wstring target = Written([&file](wchar_t* buffer, DWORD size)
                                  { return ::GetFinalPathNameByHandleW(HandleOf(file), buffer, size, FILE_NAME_NORMALIZED); });
    if (target.empty() && (::GetFileAttributesW(SystemName(name).c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
    {
        target = FullName(Wide(name)); // some systems do not say long names, and this one is no link
    }
    return Narrow(target);
}

// The lock is not on the file itself, since no other file can take the place of one that is open.
bool FileLock::Try(const File&, const FileState& state)
{
    const std::wstring name = L"Global\\ombrel-effects-" + std::to_wstring(state.volume) + L"-" + std::to_wstring(state.number);
    const HANDLE mutex = ::CreateMutexW(nullptr, FALSE, name.c_str());
    if (!mutex)
    {
        return true;
    }
    if (::WaitForSingleObject(mutex, 0) == WAIT_TIMEOUT)
    {
        ::CloseHandle(mutex);
        return false;
    }
    m_handle = reinterpret_cast<std::intptr_t>(mutex);
    return true;
}

void FileLock::Release() noexcept
{
    if (m_handle != 0)
    {
        const auto mutex = reinterpret_cast<HANDLE>(std::exchange(m_handle, 0)); // NOLINT(performance-no-int-to-ptr)
        ::ReleaseMutex(mutex);
        ::CloseHandle(mutex);
    }
}

Replacement::Replacement(const std::string& target, const FileState& state) : m_target(target)
{
    const std::string folder = target.substr(0, target.rfind('\\') + 1);
    do
    {
        m_name = folder + ".ombrel-effects-" + Narrow(RandomLetters());
        m_file = Open(SystemName(m_name), GENERIC_WRITE | WRITE_DAC, CREATE_NEW,
                      FILE_ATTRIBUTE_NORMAL | (state.mode & FILE_ATTRIBUTE_ENCRYPTED));
    } while (!m_file.IsOpen() && ::GetLastError() == ERROR_FILE_EXISTS);
    m_isDone = !m_file.IsOpen();
}

Replacement::~Replacement()
{
    m_file.Close();
    if (!m_isDone)
    {
        ::DeleteFileW(SystemName(m_name).c_str());
    }
}

bool Replacement::TakeOver(const File& original, const FileState& state) const
{
    constexpr DWORD kept =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    FILE_BASIC_INFO info{}; // a time of 0 stays as it is, and so would attributes
    info.FileAttributes = (state.mode & kept) != 0 ? state.mode & kept : FILE_ATTRIBUTE_NORMAL;
    bool isFine = true;
    info.CreationTime = InfoOf<FILE_BASIC_INFO>(original, FileBasicInfo, isFine).CreationTime;
    return isFine && ::SetFileInformationByHandle(HandleOf(m_file), FileBasicInfo, &info, sizeof info) != 0 &&
           CopyRights(original, m_file);
}

// Programs that look at each new file, and readers, have the files open for a moment.
bool Replacement::TakePlaceOf(File& original)
{
    constexpr std::chrono::milliseconds pause(10);
    original.Close();
    m_file.Close();
    const std::wstring from = SystemName(m_name);
    const std::wstring to = SystemName(m_target);
    for (int attempts = 100;; --attempts)
    {
        m_isDone = ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
        const DWORD error = ::GetLastError();
        if (m_isDone || attempts == 1 || (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION))
        {
            return m_isDone;
        }
        std::this_thread::sleep_for(pause);
    }
}

} // namespace Ombrel::EffectsTool::System
