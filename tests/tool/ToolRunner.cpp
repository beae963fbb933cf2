#include "ToolRunner.h"

#include <algorithm>

namespace Ombrel
{

void PrintTo(const ToolResult& result, std::ostream* out)
{
    *out << "exit code " << result.code << "\n--- out ---\n" << result.out << "--- err ---\n" << result.err << "---";
}

ToolResult ToolTest::RunOn(std::string_view content, std::vector<std::string> arguments) const
{
    Write("f.json", content);
    arguments.insert(arguments.begin() + 1, "f.json");
    return Run(arguments);
}

std::vector<std::string> ToolTest::Files() const
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(At("")))
    {
        const std::u8string name = entry.path().filename().u8string();
        names.emplace_back(name.begin(), name.end());
    }
    std::ranges::sort(names);
    return names;
}

} // namespace Ombrel
