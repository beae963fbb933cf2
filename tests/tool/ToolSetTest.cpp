#include "ToolRunner.h"

#include <gmock/gmock.h>

#include <ostream>

namespace Ombrel
{
namespace
{

constexpr const char* HELD_BACK = "f.json: nothing written; --force writes the result all the same\n";

using ToolSet = ToolTest;

TEST_F(ToolSet, LeavesAllElseAsItStood)
{
    const char* content = R"([{"name":"EFFECT_NONE","x":[1,1.0,{"a":null}]},null,)"
                          R"({"name":"EFFECT_ACID","radius":5,"sigma":1,"unknown":1.5,"helperSettings":{"other":2}}])";
    EXPECT_EQ(RunOn(content, {"set", "2/radius", "7"}), (ToolResult{0, R"([
  {
    "name": "EFFECT_NONE",
    "x": [
      1,
      1.0,
      {
        "a": null
      }
    ]
  },
  null,
  {
    "helperSettings": {
      "other": 2
    },
    "name": "EFFECT_ACID",
    "radius": 7,
    "sigma": 1,
    "unknown": 1.5
  }
]
)",
                                                                    ""}));
}

TEST_F(ToolSet, RemovesTheKeyOfADefault)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID","radius":5})", {"set", "radius", "0"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_ACID\"\n}\n", ""}));
}

TEST_F(ToolSet, ChangesAValueWithinAProperty)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ADJUSTER","smartBlur":{"lumaBlur":4}})", {"set", "smartBlur/lumaRadius", "7"}),
              (ToolResult{0, R"({
  "name": "EFFECT_ADJUSTER",
  "smartBlur": {
    "lumaBlur": 4,
    "lumaRadius": 7
  }
}
)",
                          ""}));
}

TEST_F(ToolSet, TakesAMapThatLeavesKeysOut)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ADJUSTER"})", {"set", "colorBalance", R"({"gamma":3})"}), (ToolResult{0, R"({
  "colorBalance": {
    "gamma": 3
  },
  "name": "EFFECT_ADJUSTER"
}
)",
                                                                                                             ""}));
}

struct Change
{
    const char* effect;
    const char* key;
    const char* value;
    ToolResult expected;
};

void PrintTo(const Change& change, std::ostream* out)
{
    *out << change.effect << " " << change.key << " = " << change.value;
}

class ToolSetValue : public ToolTest, public testing::WithParamInterface<Change>
{
};

TEST_P(ToolSetValue, IsStoredOrRefused)
{
    const Change& change = GetParam();
    const std::string content = std::string("{\"name\":\"") + change.effect + "\"}";
    EXPECT_EQ(RunOn(content, {"set", change.key, "--", change.value}), change.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Stored, ToolSetValue,
    testing::Values(
        Change{"EFFECT_ACID", "radius", "-7", {0, "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": -7\n}\n", ""}},
        Change{"EFFECT_ACID", "radius", "7.0", {0, "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": 7\n}\n", ""}},
        Change{"EFFECT_ACID", "sigma", "2", {0, "{\n  \"name\": \"EFFECT_ACID\",\n  \"sigma\": 2.0\n}\n", ""}},
        Change{"EFFECT_ACID", "sigma", "0.1", {0, "{\n  \"name\": \"EFFECT_ACID\",\n  \"sigma\": 0.1\n}\n", ""}},
        Change{"EFFECT_COLOR_BALANCE_AUTO",
               "lightBalance",
               "true",
               {0, "{\n  \"lightBalance\": true,\n  \"name\": \"EFFECT_COLOR_BALANCE_AUTO\"\n}\n", ""}},
        Change{"EFFECT_EMPTY", "value", "5", {0, "{\n  \"name\": \"EFFECT_EMPTY\",\n  \"value\": \"5\"\n}\n", ""}},
        Change{"EFFECT_EMPTY", "value", "list", {0, "{\n  \"name\": \"EFFECT_EMPTY\",\n  \"value\": \"list\"\n}\n", ""}},
        Change{"EFFECT_EMPTY", "value", "[1,2]", {0, "{\n  \"name\": \"EFFECT_EMPTY\",\n  \"value\": \"[1,2]\"\n}\n", ""}},
        Change{"EFFECT_EMPTY", "value", "--force", {0, "{\n  \"name\": \"EFFECT_EMPTY\",\n  \"value\": \"--force\"\n}\n", ""}},
        Change{"EFFECT_EMPTY", "value", "\"", {0, "{\n  \"name\": \"EFFECT_EMPTY\",\n  \"value\": \"\\\"\"\n}\n", ""}},
        Change{"EFFECT_EMPTY", "value", "", {0, "{\n  \"name\": \"EFFECT_EMPTY\"\n}\n", ""}}));

INSTANTIATE_TEST_SUITE_P(
    StoredOtherwise, ToolSetValue,
    testing::Values(
        Change{
            "EFFECT_COLOR_BALANCE", "hue", "190", {1, "", std::string("f.json: hue: given 190, read as -170\n") + HELD_BACK}},
        Change{"EFFECT_ACID", "radius", "7.5", {1, "", std::string("f.json: radius: given 7.5, read as 7\n") + HELD_BACK}},
        Change{"EFFECT_ACID",
               "radius",
               "4294967297",
               {1, "", std::string("f.json: radius: given 4294967297, read as 1\n") + HELD_BACK}},
        Change{"EFFECT_ACID",
               "sigma",
               "9007199254740993",
               {1, "", std::string("f.json: sigma: given 9007199254740993, read as 9007199254740992.0\n") + HELD_BACK}},
        Change{"EFFECT_ADJUSTER",
               "vibrance",
               R"({"strength":1,"power":2})",
               {1, "",
                std::string("f.json: vibrance/power: the key is not known, so its value is lost [unknown-key]\n"
                            "f.json: vibrance: given {\"power\":2,\"strength\":1}, read as {\"strength\":1}\n") +
                    HELD_BACK}}));

INSTANTIATE_TEST_SUITE_P(
    Refused, ToolSetValue,
    testing::Values(
        Change{"EFFECT_ACID",
               "radius",
               "\"5\"",
               {2, "", "f.json: radius: expected an integer from -2147483648 to 2147483647, found \"5\" [wrong-kind]\n"}},
        Change{"EFFECT_ACID",
               "radius",
               "null",
               {2, "", "f.json: radius: expected an integer from -2147483648 to 2147483647, found null [wrong-kind]\n"}},
        Change{"EFFECT_ACID",
               "radius",
               "1e300",
               {2, "",
                "f.json: radius: no integer of 64 bits holds 1e+300; expected an integer from -2147483648 to 2147483647 "
                "[number-too-large]\n"}},
        Change{"EFFECT_ADJUSTER",
               "vibrance/strength",
               "{}",
               {2, "",
                "f.json: vibrance/strength: expected an integer from -2147483648 to 2147483647, found a map [wrong-kind]\n"}},
        Change{"EFFECT_ACID",
               "radius",
               "wide",
               {2, "", "f.json: radius: expected an integer from -2147483648 to 2147483647, found \"wide\" [wrong-kind]\n"}},
        Change{"EFFECT_TRANSPOSE",
               "angle",
               "angle_90",
               {2, "",
                "f.json: angle: \"angle_90\" is no known name, did you mean Angle_90? expected one of NoRotation, Angle_90, "
                "Angle_180, Angle_270\n"}},
        Change{"EFFECT_BI_COLOR_TONING",
               "colorFirst",
               "red",
               {2, "",
                "f.json: colorFirst: \"red\" is no colour; expected a colour of eight hexadecimal digits, such as \"ff0000ff\" "
                "[bad-colour]\n"}},
        Change{"EFFECT_ACID", "name", "EFFECT_EMPTY", {2, "", "f.json: name: the class of an effect cannot be changed\n"}},
        Change{"EFFECT_ACID",
               "radios",
               "5",
               {2, "",
                "f.json: radios: does not exist, did you mean radius? expected one of helperSettings, implName, name, radius, "
                "sigma\n"}},
        Change{"effectSettingsSimple",
               "radius",
               "5",
               {2, "", "f.json: radius: does not exist, expected one of helperSettings, implName, name\n"}}));

TEST_F(ToolSet, StoresOtherwiseOnlyByForce)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_COLOR_BALANCE"})", {"set", "hue", "190", "--force"}),
              (ToolResult{1, "{\n  \"hue\": -170,\n  \"name\": \"EFFECT_COLOR_BALANCE\"\n}\n",
                          "f.json: hue: given 190, read as -170\n"}));
}

TEST_F(ToolSet, LeavesUnknownKeysAroundTheValue)
{
    const char* content = R"({"name":"EFFECT_ADJUSTER","other":1,"vibrance":{"strength":1,"power":2},"smartBlur":{"other":3}})";
    EXPECT_EQ(RunOn(content, {"set", "vibrance/strength", "5"}), (ToolResult{0, R"({
  "name": "EFFECT_ADJUSTER",
  "other": 1,
  "smartBlur": {
    "other": 3
  },
  "vibrance": {
    "power": 2,
    "strength": 5
  }
}
)",
                                                                             ""}));
}

TEST_F(ToolSet, RefusesAnEffectAsAWhole)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_ACID"}])", {"set", "0", "{}"}),
              (ToolResult{2, "", "f.json: 0: an effect as a whole cannot be changed, expected a value of it\n"}));
    EXPECT_EQ(RunOn("[null]", {"set", "0/radius", "5"}),
              (ToolResult{2, "", "f.json: 0/radius: the effect is null and has no values\n"}));
}

TEST_F(ToolSet, ReplacesAValueThatCannotBeRead)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID","radius":"x","sigma":[]})", {"set", "radius", "5"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": 5,\n  \"sigma\": []\n}\n", ""}));
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ADJUSTER","vibrance":7})", {"set", "vibrance", R"({"strength":5})"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_ADJUSTER\",\n  \"vibrance\": {\n    \"strength\": 5\n  }\n}\n", ""}));
}

TEST_F(ToolSet, SaysWhatElseIsReadAsAnother)
{
    const char* content = R"({"name":"EFFECT_FISH_EYE","intensity":3.0,"deviation":2.0})";
    EXPECT_EQ(RunOn(content, {"set", "intensity", "4"}),
              (ToolResult{1, "", std::string("f.json: deviation: 6.0 becomes 8.0 too\n") + HELD_BACK}));
    EXPECT_EQ(RunOn(content, {"set", "deviation", "4"}),
              (ToolResult{1, "", std::string("f.json: deviation: given 4, read as 12.0\n") + HELD_BACK}));
}

TEST_F(ToolSet, ChangesWhatEveryEffectHas)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID"})", {"set", "implName", "ffmpeg"}),
              (ToolResult{0, "{\n  \"implName\": \"ffmpeg\",\n  \"name\": \"EFFECT_ACID\"\n}\n", ""}));
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID"})", {"set", "helperSettings/applyMode", R"(["ApplyToAlpha","ApplyStop"])"}),
              (ToolResult{0, R"({
  "helperSettings": {
    "applyMode": [
      "ApplyStop",
      "ApplyToAlpha"
    ]
  },
  "name": "EFFECT_ACID"
}
)",
                          ""}));
}

TEST_F(ToolSet, ChangesAValueOfAnEffectInAnEffectToItsDefault)
{
    const char* content =
        R"({"name":"effectSettingsTileStub","effectRows":[{"cols":[[{"name":"EFFECT_NONE","x":1},{"name":"EFFECT_ACID","radius":5}]]}]})";
    EXPECT_EQ(RunOn(content, {"set", "effectRows/0/cols/0/1/radius", "0"}), (ToolResult{0, R"({
  "effectRows": [
    {
      "cols": [
        [
          {
            "name": "EFFECT_NONE",
            "x": 1
          },
          {
            "name": "EFFECT_ACID"
          }
        ]
      ]
    }
  ],
  "name": "effectSettingsTileStub"
}
)",
                                                                                        ""}));
}

TEST_F(ToolSet, LeavesAnUnknownEffectBeside)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_NONE","a":[]},{"name":"EFFECT_ACID"}])", {"set", "1/radius", "5"}), (ToolResult{0, R"([
  {
    "a": [],
    "name": "EFFECT_NONE"
  },
  {
    "name": "EFFECT_ACID",
    "radius": 5
  }
]
)",
                                                                                                                        ""}));
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_NONE","a":[]}])", {"set", "0/a", "5"}),
              (ToolResult{4, "", "f.json: 0/a: what may stand here is not known\n"}));
}

TEST_F(ToolSet, TakesANaNForTheSameNaN)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID"})", {"set", "sigma", "\"NaN\"", "--non-finite"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_ACID\",\n  \"sigma\": \"NaN\"\n}\n", ""}));
}

TEST_F(ToolSet, KeepsAStringApartFromANaN)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_EMPTY"})", {"set", "value", "NaN", "--non-finite"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_EMPTY\",\n  \"value\": \"\\\\NaN\"\n}\n", ""}));
}

TEST_F(ToolSet, CutsALongValueInItsMessage)
{
    const std::string text(300, 'x');
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID"})", {"set", "radius", "\"" + text + "\""}),
              (ToolResult{2, "",
                          "f.json: radius: expected an integer from -2147483648 to 2147483647, found \"" + text.substr(0, 80) +
                              "...\" [wrong-kind]\n"}));
}

using ToolUnset = ToolTest;

TEST_F(ToolUnset, TakesOutOneKey)
{
    const char* content = R"([{"name":"EFFECT_ACID","radius":5,"sigma":"x","other":[1]}])";
    EXPECT_EQ(RunOn(content, {"unset", "0/radius"}), (ToolResult{0, R"([
  {
    "name": "EFFECT_ACID",
    "other": [
      1
    ],
    "sigma": "x"
  }
]
)",
                                                                 ""}));
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID","other":[1]})", {"unset", "other"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_ACID\"\n}\n", ""}));
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ADJUSTER","vibrance":{"strength":5}})", {"unset", "vibrance/strength"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_ADJUSTER\"\n}\n", ""}));
}

TEST_F(ToolUnset, RefusesWhatIsNoKeyOfTheFile)
{
    const char* content = R"({"name":"EFFECT_ACID","radius":5,"helperSettings":{"applyMode":["ApplyStop"]}})";
    EXPECT_EQ(RunOn(content, {"unset", "sigma"}),
              (ToolResult{2, "", "f.json: sigma: does not exist, expected one of helperSettings, name, radius\n"}));
    EXPECT_EQ(RunOn(content, {"unset", "name"}),
              (ToolResult{2, "", "f.json: name: the class of an effect cannot be changed\n"}));
    EXPECT_EQ(
        RunOn(content, {"unset", "helperSettings/applyMode/0"}),
        (ToolResult{2, "", "f.json: helperSettings/applyMode/0: an element of a list cannot be unset, expected a key\n"}));
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_GRADIENT","gradient":[{"key":1,"value":"ff0000ff"}]})", {"unset", "gradient/0/value"}),
              (ToolResult{2, "",
                          "f.json: gradient/0/value: the key cannot be unset: the map has no \"value\"; expected a map with "
                          "\"key\" and \"value\" [wrong-kind]\n"}));
}

TEST_F(ToolUnset, SaysWhatElseIsReadAsAnother)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_FISH_EYE","intensity":3.0,"deviation":2.0})", {"unset", "intensity"}),
              (ToolResult{1, "", std::string("f.json: deviation: 6.0 becomes 2.0 too\n") + HELD_BACK}));
}

} // namespace
} // namespace Ombrel
