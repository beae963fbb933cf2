#include "ToolRunner.h"

#include <gmock/gmock.h>

#include <ostream>

namespace Ombrel
{
namespace
{

constexpr const char* HELD_BACK = "nothing written; --force writes the result all the same\n";

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
        Change{"EFFECT_COLOR_BALANCE", "hue", "190", {1, "", std::string("f.json: hue: given 190, stored -170\n") + HELD_BACK}},
        Change{"EFFECT_ACID", "radius", "7.5", {1, "", std::string("f.json: radius: given 7.5, stored 7\n") + HELD_BACK}},
        Change{"EFFECT_ACID",
               "radius",
               "4294967297",
               {1, "", std::string("f.json: radius: given 4294967297, stored 1\n") + HELD_BACK}},
        Change{"EFFECT_ACID",
               "sigma",
               "9007199254740993",
               {1, "", std::string("f.json: sigma: given 9007199254740993, stored 9007199254740992.0\n") + HELD_BACK}},
        Change{"EFFECT_ADJUSTER",
               "vibrance",
               R"({"strength":1,"power":2})",
               {1, "",
                std::string("f.json: vibrance: given {\"power\":2,\"strength\":1}, stored {\"strength\":1}\n") + HELD_BACK}}));

INSTANTIATE_TEST_SUITE_P(
    Refused, ToolSetValue,
    testing::Values(
        Change{"EFFECT_ACID",
               "radius",
               "\"5\"",
               {3, "", "f.json: radius: cannot store \"5\": scalar: expected a number, found a string\n"}},
        Change{"EFFECT_ACID",
               "radius",
               "null",
               {3, "", "f.json: radius: cannot store null: tree: expected a scalar, found null\n"}},
        Change{
            "EFFECT_ACID",
            "radius",
            "1e300",
            {3, "", "f.json: radius: cannot store 1e+300: scalar: the float is no number or does not fit a 64-bit integer\n"}},
        Change{"EFFECT_ADJUSTER",
               "vibrance/strength",
               "{}",
               {3, "", "f.json: vibrance/strength: cannot store {}: tree: expected a scalar, found a map\n"}},
        Change{"EFFECT_ACID",
               "radius",
               "wide",
               {3, "", "f.json: radius: the value is not JSON: 1:1: invalid literal; expected an integer\n"}},
        Change{"EFFECT_EMPTY",
               "value",
               "\xFF",
               {3, "", "f.json: value: the value cannot be written as JSON: the string is not valid UTF-8\n"}},
        Change{"EFFECT_ACID",
               "name",
               "EFFECT_EMPTY",
               {1, "", "f.json: name: is a key of the stored effect itself, not a property\n"}},
        Change{"EFFECT_ACID",
               "radios",
               "5",
               {1, "", "f.json: radios: EFFECT_ACID has no such property, expected one of radius, sigma\n"}},
        Change{
            "effectSettingsSimple", "radius", "5", {1, "", "f.json: radius: effectSettingsSimple has no property access\n"}}));

TEST_F(ToolSet, StoresOtherwiseOnlyByForce)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_COLOR_BALANCE"})", {"set", "hue", "190", "--force"}),
              (ToolResult{1, "{\n  \"hue\": -170,\n  \"name\": \"EFFECT_COLOR_BALANCE\"\n}\n",
                          "f.json: hue: given 190, stored -170\n"}));
}

TEST_F(ToolSet, SaysWhichKeysGetLostAroundTheValue)
{
    const char* content = R"({"name":"EFFECT_ADJUSTER","other":1,"vibrance":{"strength":1,"power":2},"smartBlur":{"other":3}})";
    EXPECT_EQ(RunOn(content, {"set", "vibrance/strength", "5"}),
              (ToolResult{1, "", std::string("f.json: vibrance/power: unknown key, dropped\n") + HELD_BACK}));
}

TEST_F(ToolSet, RefusesAnEffectAsAWhole)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_ACID"}])", {"set", "0", "{}"}),
              (ToolResult{2, "", "f.json: 0: an effect as a whole cannot be set, expected a property of it\n"}));
}

TEST_F(ToolSet, RefusesAnAddressedEffectThatCannotBeRead)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_ACID","radius":"5"}])", {"set", "0/sigma", "1"}),
              (ToolResult{3, "", "f.json: 0/radius: cannot read \"5\": scalar: expected a number, found a string\n"}));
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
              (ToolResult{3, "",
                          "f.json: radius: cannot store \"" + text.substr(0, 199) +
                              "...: scalar: expected a number, found a string\n"}));
}

} // namespace
} // namespace Ombrel
