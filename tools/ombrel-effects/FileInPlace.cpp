#include "FileInPlace.h"

#include "TextFile.h"
#include "ToolError.h"

#include <chrono>
#include <optional>
#include <thread>

namespace Ombrel::EffectsTool
{
namespace
{

// Not for ever, since what asks the program to end waits too.
constexpr std::chrono::seconds LONGEST_WAIT(30);

[[noreturn]] void ThrowFailure(const std::string& file, const std::string& reason)
{
    throw ToolError(ExitCode::File, NameOfFile(file) + ": cannot be replaced: " + reason);
}

} // namespace

FileInPlace::FileInPlace(const std::string& file) : m_file(file), m_target(System::TargetOf(file))
{
    if (m_target.empty())
    {
        ThrowUnreadable(file);
    }
    const auto end = std::chrono::steady_clock::now() + LONGEST_WAIT;
    while (!Open())
    {
        if (std::chrono::steady_clock::now() > end)
        {
            ThrowFailure(m_file, "another run has been changing it for " + std::to_string(LONGEST_WAIT.count()) + " seconds");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

// False if another run has the lock, or has replaced the file while this one waited for it. The file is then closed, since on
// some systems the other run cannot replace it as long as it is open.
bool FileInPlace::Open()
{
    m_original = System::OpenToReplace(m_target);
    if (!m_original.IsOpen())
    {
        ThrowUnreadable(m_file);
    }
    std::optional<System::FileState> state = System::StateOf(m_original);
    if (state && !state->isRegular)
    {
        ThrowFailure(m_file, "it is not a regular file");
    }
    if (state && state->isReadOnly)
    {
        ThrowFailure(m_file, "it is read-only");
    }
    m_state = state.value_or(System::FileState());
    if (!m_lock.Try(m_original, m_state))
    {
        m_original.Close();
        return false;
    }
    state = System::StateOf(m_original);
    if (state)
    {
        m_state = *state;
        if (HasChanged())
        {
            m_original.Close();
            m_lock.Release();
            return false;
        }
    }
    return true;
}

std::string FileInPlace::Read(std::size_t maxBytes) const
{
    return ReadRest(m_original, m_file, maxBytes);
}

bool FileInPlace::HasChanged() const
{
    return System::StateOf(m_target) != m_state;
}

void FileInPlace::Replace(std::string_view text)
{
    const auto check = [this](bool isFine)
    {
        if (!isFine)
        {
            ThrowFailure(m_file, System::LastError());
        }
    };
    System::Replacement replacement(m_target, m_state);
    if (!replacement.Content().IsOpen())
    {
        ThrowFailure(m_file, "no file can be created in its folder: " + System::LastError());
    }
    check(replacement.Content().Write(text));
    check(replacement.TakeOver(m_original, m_state));
    check(replacement.Content().Sync());
    if (HasChanged())
    {
        ThrowFailure(m_file, "it has changed since it was read");
    }
    check(replacement.TakePlaceOf(m_original));
}

} // namespace Ombrel::EffectsTool
