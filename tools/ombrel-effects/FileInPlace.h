#ifndef OMBREL_EFFECTS_TOOL_FILE_IN_PLACE_H
#define OMBREL_EFFECTS_TOOL_FILE_IN_PLACE_H

#include <cstddef>
#include <string>
#include <string_view>

#include <sys/stat.h>

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
    FileInPlace(const FileInPlace&) = delete;
    FileInPlace& operator=(const FileInPlace&) = delete;
    ~FileInPlace();

    /// To be called once.
    /// @throws ToolError `File`
    std::string Read(std::size_t maxBytes) const;

    /// Replaces the content. A reader finds the whole old content or the whole new content, even after a crash. Mode and
    /// extended attributes are kept, and owner and group as far as the system allows it. Other hard links keep the old content.
    ///
    /// Signals that end the program must be blocked: only then no temporary file is left behind by one.
    /// @throws ToolError `File` if the file has changed since it was opened, or cannot be replaced; it is then as it was, and
    /// no
    ///         temporary file is left
    void Replace(std::string_view text) const;

private:
    bool Open();
    bool HasChanged() const;

    std::string m_file; // as the user named it
    std::string m_target;
    int m_descriptor = -1;
    struct stat m_original
    {
    };
};

} // namespace Ombrel::EffectsTool

#endif
