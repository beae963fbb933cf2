#ifndef OMBREL_EFFECTS_TOOL_FILE_IN_PLACE_H
#define OMBREL_EFFECTS_TOOL_FILE_IN_PLACE_H

#include "System.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Ombrel::EffectsTool
{

/// A file that is read and then replaced. Two runs of this program on one file wait for each other, and what other programs
/// write in between is not lost.
class FileInPlace
{
public:
    /// Opens an existing regular file. A symbolic link stays, and its target is replaced.
    /// @throws ToolError `File`
    explicit FileInPlace(const std::string& file);

    /// To be called once.
    /// @throws ToolError `File`
    std::string Read(std::size_t maxBytes) const;

    /// Replaces the content. A reader finds the whole old content or the whole new content, even after a crash. Rights and what
    /// else the system stores of a file are kept, and owner and group as far as it allows it. Other hard links keep the old
    /// content. To be called last.
    ///
    /// What ends the program must be deferred: only then no temporary file is left behind.
    /// @throws ToolError `File` if the file has changed since it was opened, or cannot be replaced; it is then as it was, and
    /// no
    ///         temporary file is left
    void Replace(std::string_view text);

private:
    bool Open();
    bool HasChanged() const;

    std::string m_file; // as the user named it
    std::string m_target;
    System::FileState m_state;
    System::FileLock m_lock;
    System::File m_original;
};

} // namespace Ombrel::EffectsTool

#endif
