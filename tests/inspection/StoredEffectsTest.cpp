#include "Inspection/StoredEffects.h"

#include "Findings.h"

#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/BlendSettings.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;
using PhotoCore::IEffectSettings;

StoredEffects Loaded(std::string_view json)
{
    StoredEffects stored;
    stored.Load(ReadJson(json, {.nonFiniteAsText = true}));
    return stored;
}

std::string Saved(const StoredEffects& stored)
{
    return WriteJson(stored.Save(), {.nonFiniteAsText = true});
}

void Set(const StoredEffects& stored, std::size_t index, std::string_view key, std::string_view json)
{
    stored.Effect(index)->GetPropertyAccess()->SetProperty(std::string(key), ReadJson(json));
}

// The class ids of the items, "-" for an item that is kept as a tree.
std::string IdsOf(const StoredEffects& stored)
{
    std::string ids;
    for (std::size_t index = 0; index != stored.Size(); ++index)
    {
        ids += (stored.Effect(index) ? stored.Effect(index)->GetClassId() : "-") + " ";
    }
    return ids;
}

class Unchanged : public testing::TestWithParam<const char*>
{
};

TEST_P(Unchanged, IsSavedAsItWasLoaded)
{
    EXPECT_EQ(Saved(Loaded(GetParam())), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Trees, Unchanged,
    testing::Values(
        "[]", "null", "3", "[null,3,\"x\",[],{}]", R"([[{"name":"EFFECT_ACID"}]])", R"({"name":"EFFECT_OF_TOMORROW","x":[1]})",
        R"([{"name":"EFFECT_OF_TOMORROW"},{"later":{"a":[null]},"name":"EFFECT_ACID","radius":3.0}])",
        R"({"name":"EFFECT_ACID","radius":"x"})", R"({"intensity":2,"name":"EFFECT_BLEND"})",
        R"({"highlights":"NaN","name":"EFFECT_ADJUSTER","shadows":-0.0})",
        R"({"implName":"default","name":"EFFECT_VIBRANCE","strength":0})", R"({"hue":540,"name":"EFFECT_COLOR_BALANCE"})",
        R"({"intensity":0.5,"name":"EFFECT_OIL_PAINT","radius":10})",
        R"({"color":"0xFF0000FF","name":"EFFECT_WHITE_BALANCE_PHOTO"})",
        R"({"mode":["Red","Cyan","Red"],"name":"EFFECT_NEGATE_VIDEO"})",
        R"({"name":"effectSettingsTileStub","pre":[{"name":"EFFECT_OF_TOMORROW"},null,{"name":"EFFECT_ACID","x":1}]})"));

TEST(StoredEffects, HasAnEffectForWhatIsKnown)
{
    const StoredEffects stored = Loaded(R"([{"name": "EFFECT_ACID", "radius": 3}, {"name": "EFFECT_OF_TOMORROW"}, null,
        {"name": "EFFECT_VIBRANCE", "strength": "x"}, {"name": "EFFECT_BLEND"}, {"name": "EFFECT_VIBRANCE", "x": 1}, {}, 3])");
    EXPECT_EQ(IdsOf(stored), "EFFECT_ACID - - - - EFFECT_VIBRANCE - - ");
    EXPECT_EQ(dynamic_cast<PhotoCore::AcidSettings&>(*stored.Effect(0)).GetTypedSettings().radius, 3);
    EXPECT_EQ(WriteJson(stored.Loaded(1)), R"({"name":"EFFECT_OF_TOMORROW"})");
    EXPECT_EQ(WriteJson(stored.Loaded(5)), R"({"name":"EFFECT_VIBRANCE","x":1})");
    EXPECT_EQ(Support::LinesOf(stored.Findings()), "error unknown-effect at 1/name\n"
                                                   "note null-effect at 2\n"
                                                   "error wrong-kind at 3/strength -> taken out\n"
                                                   "error not-registered at 4/name\n"
                                                   "warning unknown-key at 5/x -> taken out\n"
                                                   "error no-name at 6\n"
                                                   "error not-an-effect at 7\n");
}

TEST(StoredEffects, ReadsAnEffectWithoutTheInnermostThatIsRefused)
{
    const StoredEffects stored = Loaded(R"({"name": "effectSettingsTileStub",
        "pre": [{"name": "EFFECT_OF_TOMORROW"}, {"name": "EFFECT_ACID"}, null, {"name": "EFFECT_ACID", "radius": "x"}],
        "effectRows": [{"cols": [[{"name": "EffectsPackageOneInputWithBrush",
            "foregroundEffects": [{"name": "EFFECT_VIBRANCE"}, 3]}, {"name": ""}], []]}]})");
    PropertyTree read;
    PhotoCore::EffectSettings::SerializePtr(read, stored.Effect(0));
    EXPECT_EQ(WriteJson(read), R"({"effectRows":[{"cols":[[{"foregroundEffects":[{"name":"EFFECT_VIBRANCE"}],)"
                               R"("name":"EffectsPackageOneInputWithBrush"}],[]]}],)"
                               R"("name":"effectSettingsTileStub","pre":[{"name":"EFFECT_ACID"},null]})");
}

TEST(StoredEffects, LeavesAFieldOfOneEffectEmpty)
{
    const char* json = R"({"facesEffects":[{"effect":{"name":"EFFECT_OF_TOMORROW"}}],"name":"SettingsEffectFacePackage"})";
    const StoredEffects stored = Loaded(json);
    PropertyTree read;
    PhotoCore::EffectSettings::SerializePtr(read, stored.Effect(0));
    EXPECT_EQ(WriteJson(read), R"({"facesEffects":[{}],"name":"SettingsEffectFacePackage"})");
    Set(stored, 0, "currentFaceIndex", "1");
    EXPECT_EQ(Saved(stored), R"({"currentFaceIndex":1,"facesEffects":[{"effect":{"name":"EFFECT_OF_TOMORROW"}}],)"
                             R"("name":"SettingsEffectFacePackage"})");
}

struct Change
{
    const char* before;
    const char* key;
    const char* value;
    const char* after;
};

void PrintTo(const Change& change, std::ostream* out)
{
    *out << change.before << " " << change.key << " " << change.value;
}

class OneChange : public testing::TestWithParam<Change>
{
};

TEST_P(OneChange, ChangesThisAlone)
{
    const StoredEffects stored = Loaded(GetParam().before);
    Set(stored, 0, GetParam().key, GetParam().value);
    EXPECT_EQ(Saved(stored), GetParam().after);
    EXPECT_EQ(Saved(stored), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Scalars, OneChange,
    testing::Values(Change{R"({"name":"EFFECT_ACID","radius":3.0,"sigma":1,"x":{"y":2}})", "radius", "4",
                           R"({"name":"EFFECT_ACID","radius":4,"sigma":1,"x":{"y":2}})"},
                    Change{R"({"name":"EFFECT_ACID","radius":3.0,"sigma":0.5})", "radius", "3",
                           R"({"name":"EFFECT_ACID","radius":3.0,"sigma":0.5})"},
                    Change{R"({"name":"EFFECT_ACID","radius":3,"x":1})", "radius", "0", R"({"name":"EFFECT_ACID","x":1})"},
                    Change{R"({"name":"EFFECT_ACID","radius":0,"x":1})", "radius", "2",
                           R"({"name":"EFFECT_ACID","radius":2,"x":1})"},
                    Change{R"({"implName":"default","name":"EFFECT_ACID","radius":0})", "sigma", "2.5",
                           R"({"implName":"default","name":"EFFECT_ACID","radius":0,"sigma":2.5})"},
                    Change{R"([{"hue":540,"name":"EFFECT_COLOR_BALANCE"}])", "saturation", "7",
                           R"([{"hue":540,"name":"EFFECT_COLOR_BALANCE","saturation":7}])"},
                    Change{R"({"intensity":0.5,"name":"EFFECT_OIL_PAINT","radius":10})", "intensity", "0.5",
                           R"({"intensity":0.5,"name":"EFFECT_OIL_PAINT","radius":10})"},
                    Change{R"({"highlights":"NaN","name":"EFFECT_ADJUSTER","shadows":-0.0})", "contrast", "0.5",
                           R"({"contrast":0.5,"highlights":"NaN","name":"EFFECT_ADJUSTER","shadows":-0.0})"},
                    Change{R"({"angle":-1,"name":"EFFECT_TRANSPOSE"})", "angle", R"("Angle_90")",
                           R"({"angle":"Angle_90","name":"EFFECT_TRANSPOSE"})"}));

INSTANTIATE_TEST_SUITE_P(
    Records, OneChange,
    testing::Values(Change{R"({"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100.0,"lumaRadius":3,"x":1}})", "smartBlur",
                           R"({"lumaRadius": 4})",
                           R"({"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100.0,"lumaRadius":4,"x":1}})"},
                    // The record has its default, and stays for the unknown key.
                    Change{R"({"name":"EFFECT_ADJUSTER","smartBlur":{"lumaRadius":3,"x":1}})", "smartBlur",
                           R"({"lumaRadius": 100, "chromaRadius": 100})",
                           R"({"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100,"lumaRadius":100,"x":1}})"},
                    Change{R"({"name":"EFFECT_ADJUSTER","smartBlur":{"lumaRadius":3}})", "smartBlur",
                           R"({"lumaRadius": 100, "chromaRadius": 100})", R"({"name":"EFFECT_ADJUSTER"})"},
                    // The record had its default for the effect, not for itself.
                    Change{R"({"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100,"lumaRadius":100,"x":1}})", "smartBlur",
                           R"({"lumaRadius": 0})", R"({"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100,"x":1}})"},
                    Change{R"({"name":"EFFECT_ADJUSTER","x":1})", "smartBlur", R"({"lumaRadius": 7})",
                           R"({"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100,"lumaRadius":7},"x":1})"},
                    Change{R"({"backgroundSettings":{"later":1},"name":"EFFECT_REMOVE_BACKGROUND"})", "backgroundSettings",
                           R"({"bgFileName": "a"})",
                           R"({"backgroundSettings":{"bgFileName":"a","later":1},"name":"EFFECT_REMOVE_BACKGROUND"})"}));

INSTANTIATE_TEST_SUITE_P(
    SetsAndColours, OneChange,
    testing::Values(
        Change{R"({"mode":["Red","Cyan","Red"],"name":"EFFECT_NEGATE_VIDEO"})", "mode", R"(["Blue", "", "Red"])",
               R"({"mode":["Red","Cyan","Red","Blue"],"name":"EFFECT_NEGATE_VIDEO"})"},
        Change{R"({"mode":["Red","Cyan","Alpha"],"name":"EFFECT_NEGATE_VIDEO"})", "mode", R"(["Alpha", ""])",
               R"({"mode":["Cyan","Alpha"],"name":"EFFECT_NEGATE_VIDEO"})"},
        Change{R"({"mode":["Red","Alpha"],"name":"EFFECT_NEGATE_VIDEO"})", "mode", "[]", R"({"name":"EFFECT_NEGATE_VIDEO"})"},
        Change{R"({"gradient":[{"key":2,"value":"FF0000FF"},{"alpha":1,"key":1,"value":"FF"}],"name":"EFFECT_GRADIENT"})",
               "gradient", R"([{"key": 1, "value": "00ff00ff"}, {"key": 2, "value": "ff0000ff"}, {"key": 3, "value": "ff"}])",
               R"({"gradient":[{"key":2,"value":"FF0000FF"},{"alpha":1,"key":1,"value":"00ff00ff"},)"
               R"({"key":3,"value":"000000ff"}],"name":"EFFECT_GRADIENT"})"}));

TEST(StoredEffects, PutsAComputedRadiusBackAsItStood)
{
    const StoredEffects stored = Loaded(R"({"intensity":0.5,"name":"EFFECT_OIL_PAINT","radius":10,"x":1})");
    stored.Effect(0)->HelperSetting().SetUndoSet(true);
    EXPECT_EQ(Saved(stored),
              R"({"helperSettings":{"undoSet":true},"intensity":0.5,"name":"EFFECT_OIL_PAINT","radius":10,"x":1})");
}

TEST(StoredEffects, ReplacesAComputedRadiusThatWouldReadOtherwise)
{
    StoredEffects stored = Loaded(R"({"intensity":0.0,"name":"EFFECT_OIL_PAINT","radius":10,"x":1})");
    stored.Replace(0, Loaded(R"({"intensity":0.5,"name":"EFFECT_OIL_PAINT"})").Effect(0));
    EXPECT_EQ(Saved(stored), R"({"intensity":0.5,"name":"EFFECT_OIL_PAINT","x":1})");
}

TEST(StoredEffects, SavesAnEffectThatCannotBeReadOnce)
{
    const StoredEffects stored = Loaded(R"({"name":"effectSettingsTileStub","pre":[{"name":"U"}]})");
    dynamic_cast<PhotoCore::TileSettings&>(*stored.Effect(0)).Pre().push_back(PhotoCore::BlendSettings::CreateBase());
    EXPECT_EQ(Saved(stored), R"({"name":"effectSettingsTileStub","pre":[{"name":"U"},{"name":"EFFECT_BLEND"}]})");
}

TEST(StoredEffects, KeepsDefaultsThatStandBesideAChange)
{
    const StoredEffects stored =
        Loaded(R"({"helperSettings":{"applyMode":[],"maxWidth":-1,"undoSet":true},"name":"EFFECT_ACID"})");
    stored.Effect(0)->HelperSetting().SetUndoSet(false);
    EXPECT_EQ(Saved(stored), R"({"helperSettings":{"applyMode":[],"maxWidth":-1},"name":"EFFECT_ACID"})");
}

TEST(StoredEffects, MergesHelperSettings)
{
    const StoredEffects stored = Loaded(R"({"helperSettings":{"applyMode":["ApplyStop"],"later":1},"name":"EFFECT_ACID"})");
    stored.Effect(0)->HelperSetting().SetUndoSet(true);
    EXPECT_EQ(Saved(stored), R"({"helperSettings":{"applyMode":["ApplyStop"],"later":1,"undoSet":true},"name":"EFFECT_ACID"})");
    stored.Effect(0)->HelperSetting() = PhotoCore::HelperSettings();
    EXPECT_EQ(Saved(stored), R"({"helperSettings":{"later":1},"name":"EFFECT_ACID"})");
}

} // namespace
