#include "ToolRunner.h"

#include <gmock/gmock.h>

namespace Ombrel
{
namespace
{

using ToolForms = ToolTest;
using ToolLines = ToolTest;

TEST_F(ToolForms, ThinLeavesOutWhatHasItsDefault)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_ACID","radius":0,"sigma":0.25,"implName":"default","other":0},null])", {"thin"}),
              (ToolResult{0, R"([
  {
    "name": "EFFECT_ACID",
    "other": 0,
    "sigma": 0.25
  },
  null
]
)",
                          ""}));
}

TEST_F(ToolForms, FreezePutsInEveryKey)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID","sigma":"x","other":0})", {"freeze"}), (ToolResult{0, R"({
  "helperSettings": {
    "applyMode": [],
    "maxHeight": 4294967295,
    "maxWidth": 4294967295,
    "undoSet": false
  },
  "implName": "default",
  "name": "EFFECT_ACID",
  "other": 0,
  "radius": 0,
  "sigma": "x"
}
)",
                                                                                                ""}));
}

TEST_F(ToolForms, ConvertForAReleaseSaysWhatItCannot)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_ACID","radius":3}])", {"convert", "--for", "0.1"}), (ToolResult{0,
                                                                                                        R"([
  {
    "name": "EFFECT_ACID",
    "radius": 3
  }
])"
                                                                                                        "\n",
                                                                                                        ""}));
    Write("a.json", R"([{"name":"EFFECT_NOTHING"}, {"name":"EFFECT_ACID","x":1}])");
    const ToolResult result = Run({"convert", "--for", "0.1", "--in-place", "a.json"});
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.err, testing::StartsWith("a.json:1:10: error: 0/name: \"EFFECT_NOTHING\" is no known effect"));
    EXPECT_THAT(Content("a.json"), testing::HasSubstr("\"x\"")); // written, with what no release knows
    EXPECT_EQ(Run({"convert", "a.json"}).code, 2);
    EXPECT_EQ(Run({"convert", "--for", "0.1.0", "a.json"}).code, 2);
}

TEST_F(ToolForms, CheckForARelease)
{
    Write("a.json", R"([{"name":"EFFECT_ACID","x":1,"radius":0}])");
    EXPECT_EQ(Run({"check", "--for", "0.1", "a.json"}),
              (ToolResult{1,
                          "a.json:1:28: warning: 0/x: the key is not known to release 0.1, so its value is lost "
                          "[unknown-key]\n",
                          "0 errors, 1 warning, 0 notes\n"}));
    EXPECT_EQ(Run({"check", "--for", "0.1", "--fix", "a.json"}),
              (ToolResult{2, "", "--for excludes --fix: convert makes a file that a release reads\n"}));
}

TEST_F(ToolForms, ReplaceSeveralFiles)
{
    Write("a.json", R"({"name":"EFFECT_ACID","radius":0})");
    Write("b.json", R"({ "name":"EFFECT_ACID" })");
    Write("c.json", "[");
    EXPECT_EQ(Run({"thin", "a.json", "b.json"}),
              (ToolResult{2, "", "several files need --in-place, since only one document can be printed\n"}));
    EXPECT_EQ(Run({"thin", "--in-place", "--jobs", "3", "a.json", "c.json", "b.json"}),
              (ToolResult{4, "", "c.json:1:2: at 0: unexpected end of input; expected '[', '{', or a literal\n"}));
    EXPECT_EQ(Content("a.json"), "{\n  \"name\": \"EFFECT_ACID\"\n}\n");
    EXPECT_EQ(Content("b.json"), R"({ "name":"EFFECT_ACID" })");
    EXPECT_EQ(Content("c.json"), "[");
}

TEST_F(ToolLines, BecomeLines)
{
    const std::string lines = "{\"name\":\"EFFECT_ACID\",\"radius\":0,\"sigma\":2}\n"
                              "\n"
                              "[{\"name\":\"EFFECT_NONE\", \"a\":1.50},null]\n"
                              "{\"id\":7,\"effects\":[{\"name\":\"EFFECT_ACID\",\"radius\":0}],\"more\":\"x\"}";
    EXPECT_EQ(Run({"thin", "--lines", "-"}, {.input = lines}),
              (ToolResult{0,
                          "{\"name\":\"EFFECT_ACID\",\"sigma\":2}\n"
                          "\n"
                          "[{\"a\":1.5,\"name\":\"EFFECT_NONE\"},null]\n"
                          "{\"effects\":[{\"name\":\"EFFECT_ACID\"}],\"id\":7,\"more\":\"x\"}\n",
                          ""}));
}

TEST_F(ToolLines, ThatCannotBeWorkedOnStay)
{
    Write("looks.jsonl", "{\"name\":\"EFFECT_ACID\",\"other\":1}\n[1\n{\"id\":\"b\",\"effects\":{\"name\":\"EFFECT_ACID\"}}\n");
    EXPECT_EQ(Run({"normalise", "--lines", "looks.jsonl"}),
              (ToolResult{4,
                          "{\"name\":\"EFFECT_ACID\",\"other\":1}\n"
                          "[1\n"
                          "{\"effects\":{\"name\":\"EFFECT_ACID\"},\"id\":\"b\"}\n",
                          "looks.jsonl:1:31: warning: other: the key is not known, so its value is lost [unknown-key]\n"
                          "looks.jsonl:2:3: unexpected end of input; expected ']'\n"}));
    EXPECT_EQ(Run({"normalise", "--lines", "--in-place", "looks.jsonl"}).code, 2);
}

TEST_F(ToolLines, AreCheckedEachWithItsNumber)
{
    const std::string lines = "{\"name\":\"EFFECT_ACID\"}\n{\"id\":\"b\",\"effects\":[null,{\"name\":\"EFFECT_NONE\"}]}\n5\n";
    EXPECT_EQ(Run({"check", "--lines", "--quiet", "-"}, {.input = lines}),
              (ToolResult{1,
                          "<stdin>:2:22: note: effects/0: no effect stands here [null-effect]\n"
                          "<stdin>:2:35: error: effects/1/name: \"EFFECT_NONE\" is no known effect; expected a class id "
                          "[unknown-effect]\n"
                          "<stdin>:3:1: error: expected an effect, found 5 [not-an-effect]\n",
                          ""}));
    EXPECT_THAT(Run({"check", "--lines", "--json", "-"}, {.input = lines}).out,
                testing::HasSubstr(R"("found":"EFFECT_NONE","id":"b","line":2)"));
}

TEST_F(ToolLines, HaveALargestLength)
{
    EXPECT_EQ(Run({"check", "--lines", "--quiet", "--max-bytes", "6", "-"}, {.input = "null\n      \nnull   \n"}),
              (ToolResult{3, "<stdin>:1:1: note: no effect stands here [null-effect]\n",
                          "<stdin>:3: is longer than the 6 bytes that --max-bytes allows\n"}));
}

} // namespace
} // namespace Ombrel
