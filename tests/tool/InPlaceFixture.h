#ifndef OMBREL_TESTS_TOOL_IN_PLACE_FIXTURE_H
#define OMBREL_TESTS_TOOL_IN_PLACE_FIXTURE_H

#include "ToolRunner.h"

#include <string>
#include <vector>

namespace Ombrel
{

/// A file "f.json" whose effect a command changes.
class ToolInPlace : public ToolTest
{
protected:
    static constexpr const char* OLD = R"({"name":"EFFECT_ACID","radius":5})";
    static constexpr const char* NEW = "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": 7\n}\n";

    ToolInPlace() { Write("f.json", OLD); }

    ToolResult SetRadius(const ToolSurroundings& surroundings = {}, const std::string& file = "f.json") const
    {
        return Run({"set", file, "radius", "7", "--in-place"}, surroundings);
    }

    void ExpectUntouched() const
    {
        EXPECT_EQ(Content("f.json"), OLD);
        EXPECT_EQ(Files(), std::vector<std::string>{"f.json"});
    }
};

} // namespace Ombrel

#endif
