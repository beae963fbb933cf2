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
    EXPECT_EQ(RunOn(content, {"normalise"}), (ToolResult{1, R"([
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
                                                         "f.json: 0/radios: unknown key, dropped\n"
                                                         "f.json: 1/helperSettings/undo: unknown key, dropped\n"
                                                         "f.json: 1/vibrance/a~1b: unknown key, dropped\n"
                                                         "f.json: 2/radius: unknown key, dropped\n"}));
}

TEST_F(ToolNormalise, FindsUnknownKeysBesideANaN)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID","sigma":"NaN","radios":1})", {"normalise", "--non-finite"}),
              (ToolResult{1, "{\n  \"name\": \"EFFECT_ACID\",\n  \"sigma\": \"NaN\"\n}\n",
                          "f.json: radios: unknown key, dropped\n"}));
}

TEST_F(ToolNormalise, PrintsNothingIfAnEffectCannotBeRead)
{
    EXPECT_EQ(
        RunOn(R"([{"name":"EFFECT_ACID"},{"name":"EFFECT_ADJUSTER","smartBlur":{"lumaBlur":1,"lumaRadius":true}}])",
              {"normalise"}),
        (ToolResult{3, "", "f.json: 1/smartBlur/lumaRadius: cannot read true: scalar: expected a number, found a bool\n"}));
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
