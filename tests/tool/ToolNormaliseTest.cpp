#include "ToolRunner.h"

namespace Ombrel
{
namespace
{

using ToolNormalise = ToolTest;

TEST_F(ToolNormalise, LeavesDefaultsOutAndKeepsNull)
{
    const char* content = R"([{"name":"EFFECT_ACID","radius":5.0,"sigma":0.5,"implName":"default"},null])";
    EXPECT_EQ(RunOn(content, {"normalise"}), (ToolResult{0, R"([
  {
    "name": "EFFECT_ACID",
    "radius": 5
  },
  null
]
)",
                                                         ""}));
}

TEST_F(ToolNormalise, KeepsASingleEffectSingle)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_VIBRANCE","strength":1})", {"normalise"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_VIBRANCE\",\n  \"strength\": 1\n}\n", ""}));
}

TEST_F(ToolNormalise, NamesEveryKeyThatItDrops)
{
    const char* content = R"([{"name":"EFFECT_ACID","radius":0,"radios":1},)"
                          R"({"name":"EFFECT_ADJUSTER","vibrance":{"strength":0,"a/b":[{"deep":1}]},)"
                          R"("helperSettings":{"undoSet":false,"applyMode":[],"maxWidth":4294967295,"undo":true}},)"
                          R"({"name":"effectSettingsSimple","radius":{}}])";
    const std::string lost =
        "f.json:1:44: warning: 0/radios: the key is not known, so its value is lost; did you mean "
        "\"radius\"? [unknown-key]\n"
        "f.json:1:196: warning: 1/helperSettings/undo: the key is not known, so its value is lost "
        "[unknown-key]\n"
        "f.json:1:104: warning: 1/vibrance/a~1b: the key is not known, so its value is lost [unknown-key]\n"
        "f.json:1:243: warning: 2/radius: the key is not known, so its value is lost [unknown-key]\n";
    EXPECT_EQ(RunOn(content, {"normalise"}),
              (ToolResult{1, "", lost + "f.json: nothing written; --force writes the result all the same\n"}));
    EXPECT_EQ(RunOn(content, {"normalise", "--force"}), (ToolResult{1, R"([
  {
    "name": "EFFECT_ACID"
  },
  {
    "name": "EFFECT_ADJUSTER"
  },
  {
    "name": "effectSettingsSimple"
  }
]
)",
                                                                    lost}));
}

TEST_F(ToolNormalise, FindsUnknownKeysBesideANaN)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID","sigma":"NaN","radios":1})", {"normalise", "--non-finite", "--force"}),
              (ToolResult{1, "{\n  \"name\": \"EFFECT_ACID\",\n  \"sigma\": \"NaN\"\n}\n",
                          "f.json:1:46: warning: radios: the key is not known, so its value is lost; did you mean \"radius\"? "
                          "[unknown-key]\n"}));
}

TEST_F(ToolNormalise, PrintsNothingIfAnEffectCannotBeRead)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_ACID"},{"name":"EFFECT_ADJUSTER","smartBlur":{"lumaBlur":1,"lumaRadius":true}}])",
                    {"normalise"}),
              (ToolResult{
                  4, "",
                  "f.json:1:90: error: 1/smartBlur/lumaRadius: expected an integer from -2147483648 to 2147483647, found true "
                  "[wrong-kind]\nf.json: nothing written\n"}));
}

TEST_F(ToolNormalise, LeavesAnEffectThatIsNotKnown)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_NONE","b":1,"a":5.0},{"name":"EFFECT_ACID","radius":5.0},{"name":"EFFECT_BLEND"}])",
                    {"normalise"}),
              (ToolResult{0, R"([
  {
    "a": 5.0,
    "b": 1,
    "name": "EFFECT_NONE"
  },
  {
    "name": "EFFECT_ACID",
    "radius": 5
  },
  {
    "name": "EFFECT_BLEND"
  }
]
)",
                          ""}));
}

TEST_F(ToolNormalise, NamesEveryValueThatItChanges)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_FISH_EYE","intensity":3.0,"deviation":2.0})", {"normalise"}),
              (ToolResult{1, "",
                          "f.json:1:55: warning: deviation: 2.0 is written as 6.0 [changes-on-write]\n"
                          "f.json: nothing written; --force writes the result all the same\n"}));
}

TEST_F(ToolNormalise, TakesABigList)
{
    std::string content = "[";
    std::string expected = "[";
    for (int i = 0; i < 20000; ++i)
    {
        const std::string separator = i == 0 ? "" : ",";
        content += separator + R"({"name":"EFFECT_SMART_BLUR","lumaRadius":3,"chromaRadius":0})";
        expected += separator + "\n  {\n    \"lumaRadius\": 3,\n    \"name\": \"EFFECT_SMART_BLUR\"\n  }";
    }
    const ToolResult result = Run({"normalise", "-"}, {.input = content + "]"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(result.out == expected + "\n]\n")
        << "found " << result.out.size() << " bytes, expected " << expected.size() + 3;
}

} // namespace
} // namespace Ombrel
