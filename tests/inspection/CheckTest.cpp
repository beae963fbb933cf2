#include "Findings.h"

#include "Proc/EffectSettings/EffectSettings.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;
using Support::CheckedLines;

struct Case
{
    const char* json;
    const char* lines;
};

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.json;
}

class CheckOf : public testing::TestWithParam<Case>
{
};

TEST_P(CheckOf, FindsThis)
{
    EXPECT_EQ(CheckedLines(GetParam().json), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Classes, CheckOf,
    testing::Values(Case{R"({"name": "EFFECT_VIBRANCE", "strength": 3})", ""}, Case{R"([])", ""},
                    Case{R"([{"name": "EFFECT_VIBRANCE"}, {"name": "EFFECT_ACID", "radius": 2}])", ""},
                    Case{R"({})", "error no-name at \n"}, Case{R"([{"strength": 3}])", "error no-name at 0\n"},
                    Case{R"(null)", "note null-effect at \n"}, Case{R"([null])", "note null-effect at 0\n"},
                    Case{R"(3)", "error not-an-effect at \n"}, Case{R"([[]])", "error not-an-effect at 0\n"},
                    Case{R"({"name": "EFFECT_NOTHING", "strength": "x"})", "error unknown-effect at name\n"},
                    Case{R"({"name": ""})", "error unknown-effect at name\n"},
                    Case{R"({"name": 3})", "error wrong-kind at name -> taken out\n"},
                    Case{R"({"name": null})", "error wrong-kind at name -> taken out\n"},
                    Case{R"({"name": {}, "strength": "x"})", "error wrong-kind at name -> taken out\n"},
                    Case{R"({"name": "EFFECT_BLEND", "alpha": "x"})", "error not-registered at name\n"},
                    Case{R"({"name": "EFFECT_GUIDED_FILTER"})", "error not-registered at name\n"},
                    Case{R"({"name": "EFFECT_MATTING"})", "error not-registered at name\n"},
                    Case{R"({"name": "EFFECT_VIBRANCE", "strenght": 3})", "warning unknown-key at strenght -> taken out\n"},
                    Case{R"({"name": "EFFECT_VIBRANCE", "a/b~c": 3})", "warning unknown-key at a~1b~0c -> taken out\n"},
                    Case{R"({"name": "effectSettingsSimple", "radius": 3})", "warning unknown-key at radius -> taken out\n"}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, CheckOf,
    testing::Values(
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": "3"})", "error wrong-kind at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": true})", "error wrong-kind at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": null})", "error wrong-kind at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": {}})", "error wrong-kind at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": []})", "error wrong-kind at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": 1e30})", "error number-too-large at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": "NaN"})", "error number-too-large at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": 4294967299})", "warning cut-integer at strength -> 3\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": 4294967296})", "warning cut-integer at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": -2147483649})", "warning cut-integer at strength -> 2147483647\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": 3.5})", "warning truncated-float at strength -> 3\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": 0.5})", "warning truncated-float at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": 5.0})", ""},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": 0})", "note default-written at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "strength": -0.0})", "note default-written at strength -> taken out\n"},
        Case{R"({"name": "EFFECT_ADJUSTER", "highlights": 1})", ""},
        Case{R"({"name": "EFFECT_ADJUSTER", "highlights": 0.1})", ""},
        Case{R"({"name": "EFFECT_ADJUSTER", "highlights": 9007199254740993})",
             "warning narrowed-float at highlights -> 9007199254740992.0\n"},
        Case{R"({"name": "EFFECT_ADJUSTER", "highlights": "NaN"})", "note not-a-number at highlights\n"},
        Case{R"({"name": "EFFECT_ADJUSTER", "highlights": true})", "error wrong-kind at highlights -> taken out\n"},
        Case{R"({"name": "EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "shadows": 0.1})",
             "warning narrowed-float at shadows -> 0.10000000149011612\n"},
        Case{R"({"name": "EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "shadows": 16777217})",
             "warning narrowed-float at shadows -> 16777216.0\n"},
        Case{R"({"name": "SettingsEffectFacePackage", "currentFaceIndex": -1})", ""}));

INSTANTIATE_TEST_SUITE_P(
    Names, CheckOf,
    testing::Values(
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": "Angle_90"})", ""},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": "NoRotation"})", "note default-written at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": "angle_90"})", "warning unknown-name at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": ""})", "warning unknown-name at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": null})", "warning unknown-name at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": {}})", "warning unknown-name at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": []})", "warning unknown-name at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": 2})", "warning number-for-name at angle -> \"Angle_180\"\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": 6})", "warning number-for-name at angle -> \"Angle_180\"\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": -1})", "warning number-for-name at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_TEXTURE", "transpose": {"angle": -1}})",
             "warning number-for-name at transpose/angle -> taken out\nnote default-written at transpose -> taken out\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": 2.0})", "error wrong-kind at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": true})", "error wrong-kind at angle -> taken out\n"},
        Case{R"({"name": "EFFECT_BLUR", "algorithm": "Gauss"})", "warning unknown-name at algorithm -> taken out\n"},
        Case{R"({"name": "EFFECT_BLUR", "algorithm": 1})", "error wrong-kind at algorithm -> taken out\n"},
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red", "Cyan"]})", "warning unknown-name at mode/1 -> taken out\n"},
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red", "Red"]})",
             "warning duplicate-element at mode/1 -> taken out\n"},
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Alpha", "Red"]})", ""},
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": "Red"})", "warning ignored-value at mode -> taken out\n"}));

INSTANTIATE_TEST_SUITE_P(
    Colours, CheckOf,
    testing::Values(
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "ff0000ff"})", ""},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "FF0000FF"})",
             "warning colour-not-canonical at color -> \"ff0000ff\"\n"},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "0xff0000ff"})",
             "warning colour-not-canonical at color -> \"ff0000ff\"\n"},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "ff0000ff\u0000"})",
             "warning colour-not-canonical at color -> \"ff0000ff\"\n"},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "red"})", "error bad-colour at color -> taken out\n"},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": ""})", "error bad-colour at color -> taken out\n"},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "ff0000ff0"})", "error bad-colour at color -> taken out\n"},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": 255})", "error wrong-kind at color -> taken out\n"},
        Case{R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 1, "value": "ff0000ff"}]})", ""},
        Case{R"({"name": "EFFECT_GRADIENT", "gradient": {}})", "warning ignored-value at gradient -> taken out\n"},
        Case{R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 1}]})",
             "error wrong-kind at gradient/0 -> taken out\nnote default-written at gradient -> taken out\n"},
        Case{R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 1, "value": "ff0000ff"}, {"key": 2, "value": "x"}]})",
             "error bad-colour at gradient/1/value -> element taken out\n"},
        Case{
            R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 10, "value": "ff0000ff"}, {"key": 266, "value": "00ff00ff"}]})",
            "warning cut-integer at gradient/1/key -> 10\nwarning duplicate-element at gradient/0 -> taken out\n"},
        Case{R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 2, "value": "ff0000ff"}, {"key": 1, "value": "00ff00ff"}]})",
             ""},
        Case{R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 1, "value": "ff0000ff", "alpha": 1}]})",
             "warning unknown-key at gradient/0/alpha -> taken out\n"}));

INSTANTIATE_TEST_SUITE_P(
    Records, CheckOf,
    testing::Values(
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {}})", ""},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 100}})", ""},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 0}})",
             "note default-written at smartBlur/lumaRadius -> taken out\n"},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 100, "chromaRadius": 100}})",
             "note default-written at smartBlur -> taken out\n"},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": []})", "error wrong-kind at smartBlur -> taken out\n"},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": "x", "chroma": 1}})",
             "error wrong-kind at smartBlur/lumaRadius -> taken out\nwarning unknown-key at smartBlur/chroma -> taken out\n"},
        Case{R"({"name": "EFFECT_REMOVE_BACKGROUND"})", ""},
        Case{R"({"name": "EFFECT_REMOVE_BACKGROUND", "backgroundSettings": {}})", ""},
        Case{R"({"name": "EFFECT_REMOVE_BACKGROUND", "backgroundSettings": {"bgFileName": ""}})",
             "note default-written at backgroundSettings/bgFileName -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "implName": "default"})", "note default-written at implName -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "implName": "gpu", "helperSettings": {"undoSet": true}})", ""},
        Case{R"({"name": "EFFECT_VIBRANCE", "implName": 3})", "error wrong-kind at implName -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "helperSettings": null})", "error wrong-kind at helperSettings -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "helperSettings": {}})", "note default-written at helperSettings -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "helperSettings": {"undoSet": true, "maxWidth": -1}})",
             "warning cut-integer at helperSettings/maxWidth -> taken out\n"},
        Case{R"({"name": "EFFECT_VIBRANCE", "helperSettings": {"applyMode": ["ApplyStop", "Stop"]}})",
             "warning unknown-name at helperSettings/applyMode/1 -> \"Invalid\"\n"}));

INSTANTIATE_TEST_SUITE_P(
    WhatIsComputed, CheckOf,
    testing::Values(
        Case{R"({"name": "EFFECT_COLOR_BALANCE", "hue": 540})", "warning changes-on-write at hue -> -180\n"},
        Case{R"({"name": "EFFECT_COLOR_BALANCE", "hue": 180})", ""},
        Case{R"({"name": "EFFECT_ADJUSTER", "colorBalance": {"hue": 181}})",
             "warning changes-on-write at colorBalance/hue -> -179\n"},
        Case{R"({"name": "EFFECT_OIL_PAINT", "intensity": 0.5, "radius": 10})", "warning changes-on-write at radius\n"},
        Case{R"({"name": "EFFECT_OIL_PAINT", "radius": 10})", ""},
        Case{R"({"name": "EFFECT_FISH_EYE", "intensity": 0.5, "deviation": 2.0})", "warning changes-on-write at deviation\n"},
        Case{R"({"name": "EFFECT_RETRO_ARTEFACTS", "intensity": 2.0, "grain": 10})", "warning changes-on-write at grain\n"}));

INSTANTIATE_TEST_SUITE_P(
    EffectsInEffects, CheckOf,
    testing::Values(
        Case{R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_VIBRANCE", "strength": "x"}, null]})",
             "error wrong-kind at pre/0/strength -> taken out\nnote null-effect at pre/1\n"},
        Case{R"({"name": "effectSettingsTileStub", "post": [{"name": "EFFECT_NOTHING"}], "pre": [{"name": "x"}]})",
             "error unknown-effect at pre/0/name\nerror unknown-effect at post/0/name\n"},
        Case{R"({"name": "effectSettingsTileStub", "effectRows": [{"cols": [[], []]}, {"cols": [[]]}]})",
             "note ragged-rows at effectRows/1\n"},
        Case{R"({"name": "effectSettingsTileStub", "effectRows": [{"cols": [3]}]})",
             "warning ignored-value at effectRows/0/cols/0 -> []\n"},
        Case{R"({"name": "SettingsEffectFacePackage", "facesEffects": [{"effect": {"name": "effectSettingsTileStub",
                 "implName": "gpu"}}]})",
             "warning lost-by-copy at facesEffects/0/effect/implName -> taken out\n"},
        Case{R"({"name": "SettingsEffectFacePackage", "facesEffects": [{"effect": {"name": "effectSettingsTileStub",
                 "pre": [{"name": "effectSettingsTileStub", "helperSettings": {"undoSet": true}}]}}]})",
             "warning lost-by-copy at facesEffects/0/effect/pre/0/helperSettings -> taken out\n"},
        Case{R"({"name": "SettingsEffectFacePackage", "facesEffects": [{"effect": {"name": "EFFECT_VIBRANCE",
                 "implName": "gpu"}}]})",
             ""},
        Case{R"({"name": "SettingsEffectFacePackage", "facesEffects": [{"effect": {"name": "EffectsPackageOneInputWithBrush",
                 "foregroundEffects": [{"name": "effectSettingsTileStub", "implName": "gpu"}]}}]})",
             ""},
        Case{R"({"name": "effectSettingsTileStub", "implName": "gpu"})", ""}));

TEST(Check, TellsWhatWasFoundAndExpected)
{
    const std::vector<Finding> findings = Check(ReadJson(R"({"name": "EFFECT_TRANSPOSE", "angle": "angle_90", "axis": 1})"));
    ASSERT_EQ(findings.size(), 2u);
    EXPECT_EQ(findings[0].found, PropertyTree("angle_90"));
    EXPECT_EQ(findings[0].becomes, PropertyTree("NoRotation"));
    EXPECT_EQ(findings[0].expected, "one of the names \"NoRotation\", \"Angle_90\", \"Angle_180\", \"Angle_270\"");
    EXPECT_EQ(findings[0].nearest, "Angle_90");
    EXPECT_EQ(findings[0].message, "\"angle_90\" reads as \"NoRotation\"");
    EXPECT_EQ(findings[1].path.Steps(), (std::vector<PathStep>{"axis"}));
    EXPECT_EQ(findings[1].found, PropertyTree(1));
    EXPECT_EQ(findings[1].nearest, "");
    EXPECT_EQ(Check(ReadJson(R"({"name": "EFFECT_VIBRENCE"})"))[0].nearest, "EFFECT_VIBRANCE");
    EXPECT_EQ(Check(ReadJson(R"({"name": "EFFECT_VIBRANCE", "strenght": 1})"))[0].nearest, "strength");
}

TEST(Check, EndsWithTheGreatestNumberOfFindings)
{
    EXPECT_EQ(CheckedLines(R"([3, 4, 5])", {.maxFindings = 2}), "error not-an-effect at 0\nerror not-an-effect at 1\n");
    EXPECT_EQ(CheckedLines(R"([3, 4, 5])", {.maxFindings = 0}), "");
}

PropertyTree NestedTiles(int count)
{
    PropertyTree tree;
    for (int level = 0; level != count; ++level)
    {
        PropertyTree outer;
        outer["name"] = "effectSettingsTileStub";
        if (level != 0)
        {
            outer["pre"].append(std::move(tree));
        }
        tree = std::move(outer);
    }
    return tree;
}

TEST(Check, FindsWhatIsNestedTooDeep)
{
    EXPECT_EQ(Support::LinesOf(Check(NestedTiles(512))), "");
    const std::vector<Finding> findings = Check(NestedTiles(100000));
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].code, FindingCode::TooDeep);
    EXPECT_EQ(findings[0].path.Steps().size(), 2u * 512);
}

TEST(Check, PassesThroughAnyDepthOfPlainTrees)
{
    PropertyTree deep;
    for (int level = 0; level != 100000; ++level)
    {
        PropertyTree outer;
        outer.append(std::move(deep));
        deep = std::move(outer);
    }
    PropertyTree effect;
    effect["name"] = "EFFECT_VIBRANCE";
    effect["strength"] = deep;
    effect["other"] = deep;
    EXPECT_EQ(Support::LinesOf(Check(effect)),
              "error wrong-kind at strength -> taken out\nwarning unknown-key at other -> taken out\n");
    EXPECT_EQ(Support::LinesOf(Check(deep)), "error not-an-effect at 0\n");
}

} // namespace
