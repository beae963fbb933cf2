#include "Inspection/Forms.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

// With "$H" for the helper settings as by default, which every frozen effect has.
std::string Expanded(std::string_view json)
{
    constexpr std::string_view helper =
        R"("helperSettings":{"applyMode":[],"maxHeight":4294967295,"maxWidth":4294967295,"undoSet":false})";
    std::string text(json);
    for (std::size_t at = text.find("$H"); at != std::string::npos; at = text.find("$H", at))
    {
        text.replace(at, 2, helper);
    }
    return text;
}

using Change = PropertyTree (*)(PropertyTree);

std::string Changed(Change change, std::string_view json)
{
    return WriteJson(change(ReadJson(json, {.nonFiniteAsText = true})), {.nonFiniteAsText = true});
}

struct Case
{
    const char* json;
    const char* thin;
    const char* frozen; // null where it is too long to be told
};

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.json;
}

class FormsOf : public testing::TestWithParam<Case>
{
};

TEST_P(FormsOf, AreThese)
{
    EXPECT_EQ(Changed(&Thin, GetParam().json), Expanded(GetParam().thin));
    if (GetParam().frozen)
    {
        EXPECT_EQ(Changed(&Freeze, GetParam().json), Expanded(GetParam().frozen));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, FormsOf,
    testing::Values(Case{R"({"name": "EFFECT_ACID"})", R"({"name":"EFFECT_ACID"})",
                         R"({$H,"implName":"default","name":"EFFECT_ACID","radius":0,"sigma":0.5})"},
                    Case{R"({"name": "EFFECT_ACID", "radius": 0.0, "sigma": 0.5})", R"({"name":"EFFECT_ACID"})",
                         R"({$H,"implName":"default","name":"EFFECT_ACID","radius":0.0,"sigma":0.5})"},
                    Case{R"({"name": "EFFECT_ACID", "radius": -0.0, "sigma": 2})", R"({"name":"EFFECT_ACID","sigma":2})",
                         R"({$H,"implName":"default","name":"EFFECT_ACID","radius":-0.0,"sigma":2})"},
                    Case{R"({"name": "EFFECT_ACID", "radius": 3, "sigma": "NaN"})",
                         R"({"name":"EFFECT_ACID","radius":3,"sigma":"NaN"})",
                         R"({$H,"implName":"default","name":"EFFECT_ACID","radius":3,"sigma":"NaN"})"},
                    // Numbers that are read as the default.
                    Case{R"({"name": "EFFECT_ACID", "radius": 0.25})", R"({"name":"EFFECT_ACID","radius":0.25})",
                         R"({$H,"implName":"default","name":"EFFECT_ACID","radius":0.25,"sigma":0.5})"},
                    Case{R"({"name": "EFFECT_ACID", "radius": 4294967296})", R"({"name":"EFFECT_ACID","radius":4294967296})",
                         R"({$H,"implName":"default","name":"EFFECT_ACID","radius":4294967296,"sigma":0.5})"},
                    // Kinds that no read takes.
                    Case{R"({"name": "EFFECT_ACID", "radius": "0", "sigma": 0.5})", R"({"name":"EFFECT_ACID","radius":"0"})",
                         R"({$H,"implName":"default","name":"EFFECT_ACID","radius":"0","sigma":0.5})"},
                    Case{R"({"name": "EFFECT_ACID", "radius": {"sigma": 0.5}, "sigma": null})",
                         R"({"name":"EFFECT_ACID","radius":{"sigma":0.5},"sigma":null})",
                         R"({$H,"implName":"default","name":"EFFECT_ACID","radius":{"sigma":0.5},"sigma":null})"},
                    Case{R"({"name": "EFFECT_COLOR_BALANCE_AUTO", "lightBalance": false, "whiteBalance": true})",
                         R"({"name":"EFFECT_COLOR_BALANCE_AUTO","whiteBalance":true})",
                         R"({"exposure":0,$H,"implName":"default","lightBalance":false,"name":"EFFECT_COLOR_BALANCE_AUTO",)"
                         R"("whiteBalance":true})"},
                    Case{R"({"name": "EFFECT_EMPTY", "value": ""})", R"({"name":"EFFECT_EMPTY"})",
                         R"({$H,"implName":"default","name":"EFFECT_EMPTY","value":""})"}));

INSTANTIATE_TEST_SUITE_P(
    NamesAndColours, FormsOf,
    testing::Values(
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": "NoRotation"})", R"({"name":"EFFECT_TRANSPOSE"})",
             R"({"angle":"NoRotation",$H,"implName":"default","name":"EFFECT_TRANSPOSE"})"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": "Angle_90"})", R"({"angle":"Angle_90","name":"EFFECT_TRANSPOSE"})",
             R"({"angle":"Angle_90",$H,"implName":"default","name":"EFFECT_TRANSPOSE"})"},
        // What is read as the default, or as a number that has a name.
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": ""})", R"({"angle":"","name":"EFFECT_TRANSPOSE"})",
             R"({"angle":"",$H,"implName":"default","name":"EFFECT_TRANSPOSE"})"},
        Case{R"({"name": "EFFECT_TRANSPOSE", "angle": 0})", R"({"angle":0,"name":"EFFECT_TRANSPOSE"})",
             R"({"angle":0,$H,"implName":"default","name":"EFFECT_TRANSPOSE"})"},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO"})", R"({"name":"EFFECT_WHITE_BALANCE_PHOTO"})",
             R"({"color":"000000ff",$H,"implName":"default","name":"EFFECT_WHITE_BALANCE_PHOTO"})"},
        Case{R"({"name": "EFFECT_WHITE_BALANCE_PHOTO", "color": "FF"})",
             R"({"color":"FF","name":"EFFECT_WHITE_BALANCE_PHOTO"})",
             R"({"color":"FF",$H,"implName":"default","name":"EFFECT_WHITE_BALANCE_PHOTO"})"},
        // A hue that is normalised, and values that are scaled: the stored value counts.
        Case{R"({"name": "EFFECT_ADJUSTER", "colorBalance": {"hue": 540, "gamma": 0}})",
             R"({"colorBalance":{"hue":540},"name":"EFFECT_ADJUSTER"})", nullptr},
        Case{R"({"name": "EFFECT_ADJUSTER", "colorBalance": {"hue": 0}})", R"({"name":"EFFECT_ADJUSTER"})", nullptr},
        Case{R"({"name": "EFFECT_ADJUSTER", "colorBalance": {"hue": 360}})",
             R"({"colorBalance":{"hue":360},"name":"EFFECT_ADJUSTER"})", nullptr},
        Case{R"({"name": "EFFECT_FISH_EYE", "deviation": 0.0, "intensity": 3})", R"({"intensity":3,"name":"EFFECT_FISH_EYE"})",
             R"({"deviation":0.0,$H,"implName":"default","intensity":3,"name":"EFFECT_FISH_EYE"})"}));

INSTANTIATE_TEST_SUITE_P(
    Lists, FormsOf,
    testing::Values(
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": []})", R"({"name":"EFFECT_NEGATE_VIDEO"})",
             R"({$H,"implName":"default","mode":[],"name":"EFFECT_NEGATE_VIDEO"})"},
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Blue", "Red", "Red"]})",
             R"({"mode":["Blue","Red","Red"],"name":"EFFECT_NEGATE_VIDEO"})",
             R"({$H,"implName":"default","mode":["Blue","Red","Red"],"name":"EFFECT_NEGATE_VIDEO"})"},
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": "Red"})", R"({"mode":"Red","name":"EFFECT_NEGATE_VIDEO"})",
             R"({$H,"implName":"default","mode":"Red","name":"EFFECT_NEGATE_VIDEO"})"},
        Case{R"({"name": "EFFECT_GRADIENT"})", R"({"name":"EFFECT_GRADIENT"})",
             R"({"gradient":[],$H,"implName":"default","name":"EFFECT_GRADIENT"})"},
        Case{R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 0, "value": "000000ff", "x": 1}, {}]})",
             R"({"gradient":[{"key":0,"value":"000000ff","x":1},{}],"name":"EFFECT_GRADIENT"})",
             R"({"gradient":[{"key":0,"value":"000000ff","x":1},{}],$H,"implName":"default","name":"EFFECT_GRADIENT"})"},
        // Points, which may go back to nothing within their list.
        Case{R"({"name": "EFFECT_FACE_THINNING", "faceOutline": {"contour": [{}, {"x": 0, "y": 2}, {"x": 1, "z": 0}, 3]}})",
             R"({"faceOutline":{"contour":[{},{"y":2},{"x":1,"z":0},3]},"name":"EFFECT_FACE_THINNING"})",
             R"({"faceOutline":{"contour":[{"x":0,"y":0},{"x":0,"y":2},{"x":1,"y":0,"z":0},3]},$H,"implName":"default",)"
             R"("name":"EFFECT_FACE_THINNING","strength":0.0})"}));

INSTANTIATE_TEST_SUITE_P(
    TwoLevels, FormsOf,
    testing::Values(
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {}})", R"({"name":"EFFECT_ADJUSTER","smartBlur":{}})", nullptr},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 0, "chromaRadius": 100}})",
             R"({"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100}})", nullptr},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 100, "chromaRadius": 100, "lumaBlur": 0}})",
             R"({"name":"EFFECT_ADJUSTER"})", nullptr},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 100, "chromaRadius": 100, "blur": 0}})",
             R"({"name":"EFFECT_ADJUSTER","smartBlur":{"blur":0,"chromaRadius":100,"lumaRadius":100}})", nullptr},
        Case{R"({"name": "EFFECT_ADJUSTER", "vibrance": {"strength": 0}, "hueIntensity": 1})", R"({"name":"EFFECT_ADJUSTER"})",
             nullptr},
        Case{R"({"name": "EFFECT_ADJUSTER", "vibrance": {"strength": "0"}})",
             R"({"name":"EFFECT_ADJUSTER","vibrance":{"strength":"0"}})", nullptr},
        Case{R"({"name": "EFFECT_ADJUSTER", "vibrance": [0]})", R"({"name":"EFFECT_ADJUSTER","vibrance":[0]})", nullptr},
        // It is written by default too.
        Case{R"({"name": "EFFECT_REMOVE_BACKGROUND", "smooth": 0})",
             R"({"backgroundSettings":{},"name":"EFFECT_REMOVE_BACKGROUND"})",
             R"({"adapt":0,"backgroundSettings":{"bgColor":"000000ff","bgFileName":""},$H,"implName":"default","morph":0,)"
             R"("name":"EFFECT_REMOVE_BACKGROUND","scaleX":1.0,"scaleY":1.0,"smooth":0,"x":0.5,"y":0.5})"},
        Case{R"({"name": "EFFECT_REMOVE_BACKGROUND", "backgroundSettings": {"bgFileName": "", "bgColor": "ff0000ff"}})",
             R"({"backgroundSettings":{"bgColor":"ff0000ff"},"name":"EFFECT_REMOVE_BACKGROUND"})", nullptr},
        Case{R"({"name": "EFFECT_REMOVE_BACKGROUND", "backgroundSettings": null})",
             R"({"backgroundSettings":null,"name":"EFFECT_REMOVE_BACKGROUND"})", nullptr}));

INSTANTIATE_TEST_SUITE_P(
    WhatEveryEffectHas, FormsOf,
    testing::Values(
        Case{R"({"name": "EFFECT_ACID", "implName": "default", "helperSettings": {}})", R"({"name":"EFFECT_ACID"})",
             R"({$H,"implName":"default","name":"EFFECT_ACID","radius":0,"sigma":0.5})"},
        Case{R"({"name": "EFFECT_VIBRANCE", "implName": "gpu", "helperSettings": {"undoSet": false, "maxWidth": 5}})",
             R"({"helperSettings":{"maxWidth":5},"implName":"gpu","name":"EFFECT_VIBRANCE"})",
             R"({"helperSettings":{"applyMode":[],"maxHeight":4294967295,"maxWidth":5,"undoSet":false},"implName":"gpu",)"
             R"("name":"EFFECT_VIBRANCE","strength":0})"},
        Case{R"({"name": "EFFECT_VIBRANCE", "implName": 3, "helperSettings": {"maxWidth": -1}})",
             R"({"helperSettings":{"maxWidth":-1},"implName":3,"name":"EFFECT_VIBRANCE"})",
             R"({"helperSettings":{"applyMode":[],"maxHeight":4294967295,"maxWidth":-1,"undoSet":false},"implName":3,)"
             R"("name":"EFFECT_VIBRANCE","strength":0})"},
        Case{R"({"name": "effectSettingsSimple"})", R"({"name":"effectSettingsSimple"})",
             R"({$H,"implName":"default","name":"effectSettingsSimple"})"},
        Case{R"({"name": "EFFECT_RESIZE", "implName": "ffmpeg", "frameInfo": {"width": 0}})",
             R"({"implName":"ffmpeg","name":"EFFECT_RESIZE"})",
             R"({"frameInfo":{"ax":0,"ay":0,"height":0,"width":0},$H,"implName":"ffmpeg","name":"EFFECT_RESIZE",)"
             R"("resolution":-1.0,"scaleFactor":1.0,"uom":"pixels"})"}));

INSTANTIATE_TEST_SUITE_P(
    WhatIsNotKnown, FormsOf,
    testing::Values(
        Case{R"({"name": "EFFECT_VIBRANCE", "a": 0, "strength": 0, "z": {"strength": 0}})",
             R"({"a":0,"name":"EFFECT_VIBRANCE","z":{"strength":0}})",
             R"({"a":0,$H,"implName":"default","name":"EFFECT_VIBRANCE","strength":0,"z":{"strength":0}})"},
        Case{R"([null, 3, [{"name": "EFFECT_ACID", "radius": 0}], {}, {"radius": 0}, {"name": 3, "radius": 0}])",
             R"([null,3,[{"name":"EFFECT_ACID","radius":0}],{},{"radius":0},{"name":3,"radius":0}])",
             R"([null,3,[{"name":"EFFECT_ACID","radius":0}],{},{"radius":0},{"name":3,"radius":0}])"},
        Case{R"([{"name": "EFFECT_NOTHING", "radius": 0}, {"name": "EFFECT_BLEND", "alpha": 0}, {"name": "EFFECT_MATTING"}])",
             R"([{"name":"EFFECT_NOTHING","radius":0},{"alpha":0,"name":"EFFECT_BLEND"},{"name":"EFFECT_MATTING"}])",
             R"([{"name":"EFFECT_NOTHING","radius":0},{"alpha":0,"name":"EFFECT_BLEND"},{"name":"EFFECT_MATTING"}])"},
        Case{"null", "null", "null"}, Case{"true", "true", "true"}, Case{"[]", "[]", "[]"}));

INSTANTIATE_TEST_SUITE_P(
    EffectsInEffects, FormsOf,
    testing::Values(
        Case{R"({"name": "effectSettingsTileStub", "post": [], "pre": [{"name": "EFFECT_VIBRANCE", "strength": 0}, null]})",
             R"({"name":"effectSettingsTileStub","pre":[{"name":"EFFECT_VIBRANCE"},null]})",
             R"({"effectRows":[],$H,"implName":"default","name":"effectSettingsTileStub","post":[],"pre":[{$H,)"
             R"("implName":"default","name":"EFFECT_VIBRANCE","strength":0},null]})"},
        Case{R"({"name": "effectSettingsTileStub", "effectRows": [{}, {"cols": []}, {"cols": [[{"name": "EFFECT_VIBRANCE",
                 "strength": 0}], 3]}]})",
             R"({"effectRows":[{},{},{"cols":[[{"name":"EFFECT_VIBRANCE"}],3]}],"name":"effectSettingsTileStub"})",
             R"({"effectRows":[{"cols":[]},{"cols":[]},{"cols":[[{$H,"implName":"default","name":"EFFECT_VIBRANCE",)"
             R"("strength":0}],3]}],$H,"implName":"default","name":"effectSettingsTileStub","post":[],"pre":[]})"},
        // Below an effect that is not known nothing changes, whatever is around it.
        Case{R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_NOTHING", "pre": [{"name": "EFFECT_ACID",
                 "radius": 0}]}], "post": []})",
             R"({"name":"effectSettingsTileStub","pre":[{"name":"EFFECT_NOTHING","pre":[{"name":"EFFECT_ACID","radius":0}]}]})",
             R"({"effectRows":[],$H,"implName":"default","name":"effectSettingsTileStub","post":[],"pre":[)"
             R"({"name":"EFFECT_NOTHING","pre":[{"name":"EFFECT_ACID","radius":0}]}]})"},
        Case{R"({"name": "SettingsEffectFacePackage", "currentFaceIndex": 0, "facesEffects": [{"effect": null, "face": {}},
                 {"effect": {"name": "EFFECT_ACID", "sigma": 0.5}, "face": {"mouth": {}, "nose": {"x": {}}}}]})",
             R"({"facesEffects":[{},{"effect":{"name":"EFFECT_ACID"},"face":{"nose":{"x":{}}}}],)"
             R"("name":"SettingsEffectFacePackage"})",
             nullptr},
        // A copied tile loses its own keys, so that they stay as they are.
        Case{R"({"name": "SettingsEffectFacePackage", "facesEffects": [{"effect": {"name": "effectSettingsTileStub",
                 "helperSettings": {"undoSet": false, "maxWidth": 5}, "implName": "default"}}]})",
             R"({"facesEffects":[{"effect":{"helperSettings":{"maxWidth":5,"undoSet":false},)"
             R"("name":"effectSettingsTileStub"}}],"name":"SettingsEffectFacePackage"})",
             nullptr},
        // Of the mask, the levels have other defaults in a package than on their own.
        Case{R"({"name": "EffectsPackageOneInputWithBrush", "alpha": {"foreground": 0, "background": 255},
                 "foregroundEffects": [{"name": "EFFECT_VIBRANCE", "strength": 0}]})",
             R"({"foregroundEffects":[{"name":"EFFECT_VIBRANCE"}],"name":"EffectsPackageOneInputWithBrush"})",
             R"({"alpha":{"background":255,"backgroundTilt":0.0,"foreground":0,"foregroundTilt":0.0,"height":0.0,)"
             R"("rotationAngle":0.0,"shape":"Circle","threshold":0.0,"thresholdMode":"None","width":0.0,"x":0.0,"y":0.0},)"
             R"("backgroundEffects":[],"backgroundIndex":4294967295,"blendingStrength":0,"foregroundEffects":[{$H,)"
             R"("implName":"default","name":"EFFECT_VIBRANCE","strength":0}],$H,"implName":"default",)"
             R"("name":"EffectsPackageOneInputWithBrush","optimizationMode":"ShapeSizeBased",)"
             R"("swapFramesIfMaskFound":false,"useExternalMask":false})"},
        Case{R"({"name": "EffectsPackageOneInputWithBrush", "alpha": {"foreground": 255}})",
             R"({"alpha":{},"name":"EffectsPackageOneInputWithBrush"})", nullptr}));

TEST(Freeze, TellsBothLevels)
{
    const PropertyTree missing = Freeze(ReadJson(R"({"name": "EFFECT_ADJUSTER"})"));
    EXPECT_EQ(WriteJson(missing["smartBlur"]),
              R"({"chromaBlur":0,"chromaRadius":100,"chromaSharpen":0,"chromaThreshold":0,"lumaBlur":0,"lumaRadius":100,)"
              R"("lumaSharpen":0,"lumaThreshold":0})");
    const PropertyTree empty = Freeze(ReadJson(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {}})"));
    EXPECT_EQ(WriteJson(empty["smartBlur"]),
              R"({"chromaBlur":0,"chromaRadius":0,"chromaSharpen":0,"chromaThreshold":0,"lumaBlur":0,"lumaRadius":0,)"
              R"("lumaSharpen":0,"lumaThreshold":0})");
    const PropertyTree wrong = Freeze(ReadJson(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaBlur": "x", "blur": 1}})"));
    EXPECT_EQ(
        WriteJson(wrong["smartBlur"]),
        R"({"blur":1,"chromaBlur":0,"chromaRadius":0,"chromaSharpen":0,"chromaThreshold":0,"lumaBlur":"x","lumaRadius":0,)"
        R"("lumaSharpen":0,"lumaThreshold":0})");
}

TEST(Normalise, WritesWhatIsRead)
{
    EXPECT_EQ(Changed(&Normalise, R"([{"name": "EFFECT_ACID", "radius": 3.5, "sigma": 0.5, "x": 1}, null])"),
              R"([{"name":"EFFECT_ACID","radius":3},null])");
    EXPECT_EQ(Changed(&Normalise, R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Blue", "Red", "Red"]})"),
              R"({"mode":["Red","Blue"],"name":"EFFECT_NEGATE_VIDEO"})");
    EXPECT_EQ(Changed(&Normalise, R"({"name": "EFFECT_OIL_PAINT", "intensity": 0.5, "radius": 10})"),
              R"({"intensity":0.5,"name":"EFFECT_OIL_PAINT","radius":5})");
}

TEST(Normalise, LeavesAnEffectThatIsRefusedAsAWhole)
{
    EXPECT_EQ(Changed(&Normalise, R"([{"name": "EFFECT_NOTHING", "x": 1}, {"name": "EFFECT_ACID", "radius": "3", "sigma": 0.5},
                                     {"name": "EFFECT_VIBRANCE", "strength": 0}, 3, {}])"),
              R"([{"name":"EFFECT_NOTHING","x":1},{"name":"EFFECT_ACID","radius":"3","sigma":0.5},{"name":"EFFECT_VIBRANCE"},)"
              R"(3,{}])");
    EXPECT_EQ(
        Changed(&Normalise, R"({"name": "effectSettingsTileStub", "post": [], "pre": [{"name": "EFFECT_ACID",
                                     "radius": 0}, {"name": "EFFECT_NOTHING"}]})"),
        R"({"name":"effectSettingsTileStub","post":[],"pre":[{"name":"EFFECT_ACID","radius":0},{"name":"EFFECT_NOTHING"}]})");
}

PropertyTree NestedTiles(int count)
{
    PropertyTree tree;
    for (int level = 0; level != count; ++level)
    {
        PropertyTree outer;
        outer["name"] = "effectSettingsTileStub";
        outer["post"].makeList();
        if (level != 0)
        {
            outer["pre"].append(std::move(tree));
        }
        tree = std::move(outer);
    }
    return tree;
}

// How many effects, each in the "pre" of the one before, have the key "post".
int CountWithPost(const PropertyTree& tree)
{
    int count = 0;
    for (const PropertyTree* effect = &tree;; effect = &(*effect)["pre"].getList().front())
    {
        count += effect->contains("post") ? 1 : 0;
        if (!effect->contains("pre") || (*effect)["pre"].getList().empty())
        {
            return count;
        }
    }
}

TEST(Forms, GoAsDeepAsAReadDoes)
{
    EXPECT_EQ(CountWithPost(Thin(NestedTiles(512))), 0);
    EXPECT_EQ(CountWithPost(Thin(NestedTiles(513))), 1);
    EXPECT_EQ(CountWithPost(Thin(NestedTiles(100000))), 100000 - 512);
    EXPECT_EQ(CountWithPost(Freeze(Thin(NestedTiles(512)))), 512);
    EXPECT_EQ(CountWithPost(Freeze(NestedTiles(100000))), 100000);
    EXPECT_EQ(CountWithPost(Normalise(NestedTiles(512))), 0);
    EXPECT_EQ(CountWithPost(Normalise(NestedTiles(100000))), 100000);
}

TEST(Forms, PassThroughAnyDepthOfPlainTrees)
{
    PropertyTree deep;
    for (int level = 0; level != 100000; ++level)
    {
        PropertyTree outer;
        outer.append(std::move(deep));
        deep = std::move(outer);
    }
    PropertyTree effect;
    effect["name"] = "EFFECT_ADJUSTER";
    for (const char* key : {"contrast", "other", "smartBlur", "implName", "helperSettings"})
    {
        effect[key] = deep;
    }
    EXPECT_EQ(Thin(effect), effect);
    const PropertyTree frozen = Freeze(effect);
    EXPECT_EQ(frozen["smartBlur"], deep);
    EXPECT_EQ(frozen["helperSettings"], deep);
    EXPECT_EQ(Thin(frozen), effect);
    EXPECT_EQ(Normalise(effect), effect);
    EXPECT_EQ(Normalise(deep), deep);
}

} // namespace
