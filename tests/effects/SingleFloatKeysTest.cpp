#include "Proc/EffectSettings/IEffectSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

using Ombrel::PhotoCore::IEffectSettings;
using Support::Map;
using Support::StoredForm;

struct Key
{
    const char* classId;
    const char* key;
};

// The keys whose record holds 32 bits where the tree holds 64.
constexpr Key KEYS[] = {
    {"EFFECT_GIMP_COLOR_CORRECTION", "brightness"},
    {"EFFECT_GIMP_COLOR_CORRECTION", "contrast"},
    {"EFFECT_GIMP_COLOR_TEMPERATURE", "originalTemperature"},
    {"EFFECT_GIMP_COLOR_TEMPERATURE", "intendedTemperature"},
    {"EFFECT_GIMP_COLOR_TEMPERATURE", "intensity"},
    {"EFFECT_GIMP_COLORIZE", "hue"},
    {"EFFECT_GIMP_COLORIZE", "saturation"},
    {"EFFECT_GIMP_COLORIZE", "lightness"},
    {"EFFECT_GIMP_COLORIZE", "red"},
    {"EFFECT_GIMP_COLORIZE", "green"},
    {"EFFECT_GIMP_COLORIZE", "blue"},
    {"EFFECT_GIMP_COLORIZE", "intensity"},
    {"EFFECT_GIMP_HUE_SATURATION", "hueMaster"},
    {"EFFECT_GIMP_HUE_SATURATION", "lightnessMaster"},
    {"EFFECT_GIMP_HUE_SATURATION", "saturationMaster"},
    {"EFFECT_GIMP_HUE_SATURATION", "intensity"},
    {"EFFECT_GIMP_HUE_SATURATION", "overlap"},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "shadows"},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "shadowsColorCorrect"},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "highlights"},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "highlightsColorCorrect"},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "whitepoint"},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "compress"},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "intensity"},
    {"EFFECT_COLOR_FILTER", "RFactor"},
    {"EFFECT_COLOR_FILTER", "GFactor"},
    {"EFFECT_COLOR_FILTER", "BFactor"},
    {"EFFECT_COLOR_FILTER", "colorFactor"},
    {"EFFECT_COLOR_FILTER", "intensity"},
    {"EFFECT_RETRO_COLORS", "intensity"},
};

class SingleFloatKeysTest : public testing::TestWithParam<Key>
{
protected:
    static void ExpectReadAs(double expected, const Ombrel::PropertyTree& given)
    {
        const auto effect = IEffectSettings::CreateEffectSettings(GetParam().classId);
        effect->Deserialize(Map({{GetParam().key, given}}));
        EXPECT_EQ(effect->GetPropertyAccess()->GetProperty(GetParam().key), expected);
        EXPECT_EQ(StoredForm(*effect), Map({{GetParam().key, expected}}));
    }
};

TEST_P(SingleFloatKeysTest, ReadsTheNearestFloatAndWritesThatNumber)
{
    ExpectReadAs(0.100000001490116119384765625, 0.1);
}

TEST_P(SingleFloatKeysTest, StoresWhatItIsGiven)
{
    ExpectReadAs(-1234.5, -1234.5);
    ExpectReadAs(9876543.0, 9876543.0);
    ExpectReadAs(std::numeric_limits<double>::infinity(), 1e300);
}

TEST_P(SingleFloatKeysTest, TakesAnIntegerForTheSameNumber)
{
    ExpectReadAs(5.0, 5);
}

INSTANTIATE_TEST_SUITE_P(All, SingleFloatKeysTest, testing::ValuesIn(KEYS),
                         [](const auto& key) { return std::string(key.param.classId) + '_' + key.param.key; });

} // namespace
