#ifndef OMBREL_TESTS_TOOL_TOOL_RUNNER_H
#define OMBREL_TESTS_TOOL_TOOL_RUNNER_H

#include "TemporaryFolder.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace Ombrel
{

/// What a run of the program left.
struct ToolResult
{
    int code; // the exit code, or minus the signal that ended it
    std::string out;
    std::string err;

    bool operator==(const ToolResult&) const = default;
};

void PrintTo(const ToolResult& result, std::ostream* out);

/// All but the input is for POSIX systems alone.
struct ToolSurroundings
{
    std::string input = {};                      // the content of standard input
    std::optional<std::size_t> maxFileSize = {}; // in bytes, for every file that the program writes
    bool obeysFileModes = false;                 // also where the tests run as root, who may write everywhere
    std::string outputFile = {};                 // takes standard output; then `out` stays empty
};

/// Runs the program in `folder` and waits for its end.
ToolResult RunTool(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                   const ToolSurroundings& surroundings = {});

/// A folder of its own for each test, in which the program runs.
class ToolTest : public testing::Test
{
protected:
    ToolResult Run(const std::vector<std::string>& arguments, const ToolSurroundings& surroundings = {}) const
    {
        return RunTool(m_folder.Path(), arguments, surroundings);
    }

    /// The command on a file "f.json" with this content.
    ToolResult RunOn(std::string_view content, std::vector<std::string> arguments) const;

    void Write(const std::string& name, std::string_view content) const { m_folder.Write(name, content); }
    std::string Content(const std::string& name) const { return m_folder.Content(name); }
    std::vector<std::string> Files() const;
    std::filesystem::path At(const std::string& name) const { return m_folder.At(name); }

private:
    TemporaryFolder m_folder;
};

} // namespace Ombrel

#endif
