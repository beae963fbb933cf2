#include "ToolRunner.h"

#include <gmock/gmock.h>

#include <ostream>
#include <regex>

namespace Ombrel
{
namespace
{

using testing::HasSubstr;

using ToolUsage = ToolTest;
using ToolInput = ToolTest;

TEST_F(ToolUsage, HelpNamesCommandsAndExitCodes)
{
    const ToolResult result = Run({"--help"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, HasSubstr("Usage: ombrel-effects "));
    for (const char* command :
         {"list", "describe", "schema", "new", "get", "set", "unset", "check", "show", "thin", "freeze", "normalise"})
    {
        EXPECT_THAT(result.out, HasSubstr(std::string("\n  ") + command + " "));
    }
    EXPECT_THAT(result.out, HasSubstr("\n  4  not JSON"));
    EXPECT_THAT(Run({"set", "--help"}).out, HasSubstr("2/smartBlur/lumaRadius"));
}

TEST_F(ToolUsage, HasAVersion)
{
    const ToolResult result = Run({"--version"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(std::regex_match(result.out, std::regex("ombrel-effects [0-9]+\\.[0-9]+\\.[0-9]+\n"))) << result.out;
}

class ToolMisuse : public ToolTest, public testing::WithParamInterface<std::vector<std::string>>
{
};

TEST_P(ToolMisuse, IsTwo)
{
    const ToolResult result = Run(GetParam());
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr("--help"));
}

using Words = std::vector<std::string>;
INSTANTIATE_TEST_SUITE_P(Words, ToolMisuse,
                         testing::Values(Words{}, Words{"frobnicate"}, Words{"list", "a", "b"}, Words{"show"}, Words{"new"},
                                         Words{"get", "f.json"}, Words{"set", "f.json", "radius"},
                                         Words{"show", "f.json", "--in-place"}, Words{"describe"},
                                         Words{"check", "f.json", "--jobs", "0"}, Words{"unset", "f.json"}));

TEST_F(ToolUsage, StandardInputCannotBeReplaced)
{
    EXPECT_EQ(Run({"normalise", "-", "--in-place"}, {.input = "[]"}),
              (ToolResult{2, "", "<stdin>: cannot be replaced, expected a file with --in-place\n"}));
}

TEST_F(ToolInput, MustBeReadable)
{
    EXPECT_EQ(Run({"show", "none.json"}), (ToolResult{3, "", "none.json: cannot be read: No such file or directory\n"}));
    EXPECT_EQ(Run({"get", ".", "0"}), (ToolResult{3, "", ".: cannot be read: Is a directory\n"}));
}

TEST_F(ToolInput, JsonErrorHasLineAndColumn)
{
    EXPECT_EQ(RunOn("[\n  {\"name\": \"EFFECT_ACID\",\n   \"radius\": 5,\n   \"radius\": 6}\n]", {"show"}),
              (ToolResult{4, "", "f.json:4:4: at 0: duplicate key \"radius\"\n"}));
    EXPECT_EQ(Run({"show", "-"}, {.input = "[1"}), (ToolResult{4, "", "<stdin>:1:3: unexpected end of input; expected ']'\n"}));
}

struct BadEffect
{
    const char* content;
    const char* message;
};

void PrintTo(const BadEffect& bad, std::ostream* out)
{
    *out << bad.content;
}

class ToolBadEffect : public ToolTest, public testing::WithParamInterface<BadEffect>
{
};

TEST_P(ToolBadEffect, IsNamedByPlaceAndPath)
{
    const std::string message = std::string("f.json:") + GetParam().message + "]\n";
    EXPECT_EQ(RunOn(GetParam().content, {"normalise"}), (ToolResult{4, "", message + "f.json: nothing written\n"}));
    EXPECT_EQ(RunOn(GetParam().content, {"normalise", "--force"}), (ToolResult{4, "", message + "f.json: nothing written\n"}));
}

INSTANTIATE_TEST_SUITE_P(
    All, ToolBadEffect,
    testing::Values(
        BadEffect{"5", "1:1: error: expected an effect, found 5 [not-an-effect"},
        BadEffect{"[null, \"x\"]", "1:8: error: 1: expected an effect, found \"x\" [not-an-effect"},
        BadEffect{"[[]]", "1:2: error: 0: expected an effect, found a list [not-an-effect"},
        BadEffect{"{}", "1:1: error: the effect has no \"name\"; expected a class id [no-name"},
        BadEffect{R"([{"radius":5}])", "1:2: error: 0: the effect has no \"name\"; expected a class id [no-name"},
        BadEffect{R"([{"name":5,"radius":"x"}])", "1:10: error: 0/name: expected a text, found 5 [wrong-kind"},
        BadEffect{R"({"name":"EFFECT_ACID","radius":1,"sigma":[]})",
                  "1:42: error: sigma: expected a number, found a list [wrong-kind"},
        BadEffect{R"({"name":"EFFECT_ACID","implName":3})", "1:34: error: implName: expected a text, found 3 [wrong-kind"},
        BadEffect{R"({"name":"EFFECT_TRANSPOSE","angle":true})",
                  "1:36: error: angle: expected one of the names \"NoRotation\", \"Angle_90\", \"Angle_180\", \"Angle_270\", "
                  "found true [wrong-kind"},
        BadEffect{R"({"name":"EFFECT_ADJUSTER","vibrance":3})", "1:38: error: vibrance: expected a map, found 3 [wrong-kind"},
        BadEffect{"{\"name\":\"EFFECT_ADJUSTER\",\n \"vibrance\":{\"strength\":\"\x7f\"}}",
                  "2:25: error: vibrance/strength: expected an integer from -2147483648 to 2147483647, found \"\\u007f\" "
                  "[wrong-kind"}));

} // namespace
} // namespace Ombrel
