#include "ToolRunner.h"

#include <gmock/gmock.h>

#include <ostream>

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
    for (const char* command : {"list", "show", "new", "get", "set", "normalise"})
    {
        EXPECT_THAT(result.out, HasSubstr(std::string("\n  ") + command + " "));
    }
    EXPECT_THAT(result.out, HasSubstr("\n  3  not JSON"));
    EXPECT_THAT(Run({"set", "--help"}).out, HasSubstr("2/smartBlur/lumaRadius"));
}

TEST_F(ToolUsage, HasAVersion)
{
    const ToolResult result = Run({"--version"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, testing::MatchesRegex("ombrel-effects [0-9]+\\.[0-9]+\\.[0-9]+\n"));
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
                         testing::Values(Words{}, Words{"frobnicate"}, Words{"list", "more"}, Words{"show"}, Words{"new"},
                                         Words{"get", "f.json"}, Words{"set", "f.json", "radius"},
                                         Words{"show", "f.json", "--in-place"}, Words{"normalise", "a.json", "b.json"},
                                         Words{"list", "show"}));

TEST_F(ToolUsage, StandardInputCannotBeReplaced)
{
    EXPECT_EQ(Run({"normalise", "-", "--in-place"}, {.input = "[]"}),
              (ToolResult{2, "", "<stdin>: cannot be replaced, expected a file with --in-place\n"}));
}

TEST_F(ToolInput, MustBeReadable)
{
    EXPECT_EQ(Run({"show", "none.json"}), (ToolResult{2, "", "none.json: cannot be read: No such file or directory\n"}));
    EXPECT_EQ(Run({"show", "."}), (ToolResult{2, "", ".: cannot be read: Is a directory\n"}));
}

TEST_F(ToolInput, OutputMustBeWritable)
{
    EXPECT_EQ(Run({"list"}, {.outputFile = "/dev/full"}),
              (ToolResult{2, "", "<stdout>: cannot be written: No space left on device\n"}));
    EXPECT_EQ(Run({"--version"}, {.outputFile = "/dev/full"}).code, 2);
}

TEST_F(ToolInput, JsonErrorHasLineAndColumn)
{
    EXPECT_EQ(RunOn("[\n  {\"name\": \"EFFECT_ACID\",\n   \"radius\": 5,\n   \"radius\": 6}\n]", {"show"}),
              (ToolResult{3, "", "f.json:4:4: at 0: duplicate key \"radius\"\n"}));
    EXPECT_EQ(Run({"show", "-"}, {.input = "[1"}), (ToolResult{3, "", "<stdin>:1:3: unexpected end of input; expected ']'\n"}));
}

TEST_F(ToolInput, IsEscapedInMessagesAsTheJsonLibraryDoes)
{
    EXPECT_EQ(Run({"new", "~/\n\x1b\xC2\x9B\xFF\xC3\xA4"}),
              (ToolResult{1, "",
                          "~0~1\\n\\u001b\\u009b\\xff\xC3\xA4: no such class id, expected one that \"ombrel-effects list\" "
                          "shows\n"}));
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

TEST_P(ToolBadEffect, IsNamedByIndexAndKey)
{
    EXPECT_EQ(RunOn(GetParam().content, {"normalise"}), (ToolResult{3, "", GetParam().message}));
}

INSTANTIATE_TEST_SUITE_P(
    All, ToolBadEffect,
    testing::Values(
        BadEffect{"5", "f.json: found an integer, expected an effect (a map) or a list of effects\n"},
        BadEffect{"null", "f.json: found null, expected an effect (a map) or a list of effects\n"},
        BadEffect{"[{}, \"x\"]", "f.json: 1: found a string, expected an effect (a map) or null\n"},
        BadEffect{"[[]]", "f.json: 0: found a list, expected an effect (a map) or null\n"},
        BadEffect{"{}", "f.json: cannot read {}: no \"name\", expected the class id of an effect\n"},
        BadEffect{R"([{"radius":5}])",
                  "f.json: 0: cannot read {\"radius\":5}: no \"name\", expected the class id of an effect\n"},
        BadEffect{R"([{"name":5,"radius":"x"}])",
                  "f.json: 0/name: cannot read 5: scalar: expected a string, found an integer\n"},
        BadEffect{
            R"([null,{"a":1,"name":"EFFECT_NONE"}])",
            "f.json: 1/name: cannot read \"EFFECT_NONE\": Unknown Effect Setting type (EFFECT_NONE)! Expected a class id that "
            "\"ombrel-effects list\" shows as registered\n"},
        BadEffect{R"({"name":"EFFECT_ACID","radius":1,"sigma":[]})",
                  "f.json: sigma: cannot read []: tree: expected a scalar, found a list\n"},
        BadEffect{R"({"name":"EFFECT_ACID","implName":3})",
                  "f.json: implName: cannot read 3: scalar: expected a string, found an integer\n"},
        BadEffect{R"({"name":"EFFECT_ACID","helperSettings":{"applyMode":["ApplyStop",3]}})",
                  "f.json: helperSettings/applyMode/1: cannot read 3: scalar: expected a string, found an integer\n"},
        BadEffect{R"({"name":"EFFECT_ADJUSTER","vibrance":3})",
                  "f.json: vibrance: cannot read 3: tree: expected a map, found a scalar\n"}));

} // namespace
} // namespace Ombrel
