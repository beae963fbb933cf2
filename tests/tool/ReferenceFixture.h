#ifndef OMBREL_TESTS_TOOL_REFERENCE_FIXTURE_H
#define OMBREL_TESTS_TOOL_REFERENCE_FIXTURE_H

#include "ToolRunner.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>

namespace Ombrel
{

/// Writes the reference from copies of the project's notes and examples, which a test may change.
class ReferenceTest : public ToolTest
{
protected:
    ReferenceTest()
    {
        std::filesystem::copy(OMBREL_REFERENCE_NOTES, At("notes"));
        std::filesystem::copy(OMBREL_EXAMPLES, At("examples"));
    }

    ToolResult WritePages() const
    {
        return Run({"reference", "--notes", "notes", "--examples", "examples", "--output", "pages/new"});
    }

    /// How many classes the library has, as the program lists them.
    std::size_t ClassCount() const
    {
        const std::string list = Run({"list"}).out;
        return static_cast<std::size_t>(std::count(list.begin(), list.end(), '\n'));
    }

    void Replace(const std::string& file, const std::string& from, const std::string& to) const
    {
        std::string text = Content(file);
        const std::size_t place = text.find(from);
        ASSERT_NE(place, std::string::npos) << from;
        Write(file, text.replace(place, from.size(), to));
    }
};

} // namespace Ombrel

#endif
