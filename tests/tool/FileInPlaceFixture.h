#ifndef OMBREL_TESTS_TOOL_FILE_IN_PLACE_FIXTURE_H
#define OMBREL_TESTS_TOOL_FILE_IN_PLACE_FIXTURE_H

#include "FileInPlace.h"
#include "TemporaryFolder.h"
#include "ToolError.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>

namespace Ombrel::EffectsTool
{

class FileInPlaceTest : public testing::Test
{
protected:
    static constexpr const char* OLD = "the old content";
    static constexpr const char* NEW = "the new content, which is longer";

    FileInPlaceTest() { Write(OLD); }

    std::string File() const { return m_folder.At("f.json").string(); }
    const std::filesystem::path& Folder() const { return m_folder.Path(); }

    void Write(const std::string& text) const { m_folder.Write("f.json", text); }
    std::string Content() const { return m_folder.Content("f.json"); }

    std::size_t Files() const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(Folder()), std::filesystem::directory_iterator()));
    }

    /// Replaces the old content by the new one. The message of the failure; empty if there is none.
    /// @param before is called when the file has been read
    std::string Replace(const std::function<void()>& before = [] {}) const
    {
        try
        {
            FileInPlace file(File());
            EXPECT_EQ(file.Read(1000), OLD);
            before();
            file.Replace(NEW);
            return "";
        }
        catch (const ToolError& error)
        {
            EXPECT_EQ(error.code(), ExitCode::File);
            return error.what();
        }
    }

private:
    TemporaryFolder m_folder;
};

} // namespace Ombrel::EffectsTool

#endif
