#include "Proc/EffectSettings/ColorFilterSettings.h"
#include "Proc/EffectSettings/GIMPColorCorrectionSettings.h"
#include "Proc/EffectSettings/GIMPColorTemperatureSettings.h"
#include "Proc/EffectSettings/GIMPColorizeSettings.h"
#include "Proc/EffectSettings/GIMPHueSaturationSettings.h"
#include "Proc/EffectSettings/GIMPShadowsHightlightsSettings.h"
#include "Proc/EffectSettings/RetroColorsSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

using namespace Ombrel::PhotoCore;
using namespace Ombrel::Proc;
using Support::Map;
using Support::StoredForm;

struct Key
{
    const char* classId;
    const char* key;
    float (*valueIn)(const IEffectSettings&); // as the record's own getter says it
};

void PrintTo(const Key& key, std::ostream* out)
{
    *out << key.classId << ", " << key.key;
}

template <class Class, auto Getter> float ValueIn(const IEffectSettings& effect)
{
    return (dynamic_cast<const Class&>(effect).GetTypedSettings().*Getter)();
}

template <auto Getter> float MasterValueIn(const IEffectSettings& effect)
{
    const auto& record = dynamic_cast<const GIMPHueSaturationSettings&>(effect).GetTypedSettings();
    return (record.*Getter)(SettingsEffectGIMPHueSaturation::HueRange::Master);
}

// The keys whose record holds 32 bits where the tree holds 64.
constexpr Key KEYS[] = {
    {"EFFECT_GIMP_COLOR_CORRECTION", "brightness",
     &ValueIn<GIMPColorCorrectionSettings, &SettingsEffectGIMPColorCorrection::GetBrightness>},
    {"EFFECT_GIMP_COLOR_CORRECTION", "contrast",
     &ValueIn<GIMPColorCorrectionSettings, &SettingsEffectGIMPColorCorrection::GetContrast>},
    {"EFFECT_GIMP_COLOR_TEMPERATURE", "originalTemperature",
     &ValueIn<GIMPColorTemperatureSettings, &SettingsEffectGIMPColorTemperature::GetOriginalTemperature>},
    {"EFFECT_GIMP_COLOR_TEMPERATURE", "intendedTemperature",
     &ValueIn<GIMPColorTemperatureSettings, &SettingsEffectGIMPColorTemperature::GetIntendedTemperature>},
    {"EFFECT_GIMP_COLOR_TEMPERATURE", "intensity",
     &ValueIn<GIMPColorTemperatureSettings, &SettingsEffectGIMPColorTemperature::GetIntensity>},
    {"EFFECT_GIMP_COLORIZE", "hue", &ValueIn<GIMPColorizeSettings, &SettingsEffectGIMPColorize::GetHue>},
    {"EFFECT_GIMP_COLORIZE", "saturation", &ValueIn<GIMPColorizeSettings, &SettingsEffectGIMPColorize::GetSaturation>},
    {"EFFECT_GIMP_COLORIZE", "lightness", &ValueIn<GIMPColorizeSettings, &SettingsEffectGIMPColorize::GetLightness>},
    {"EFFECT_GIMP_COLORIZE", "red", &ValueIn<GIMPColorizeSettings, &SettingsEffectGIMPColorize::GetRed>},
    {"EFFECT_GIMP_COLORIZE", "green", &ValueIn<GIMPColorizeSettings, &SettingsEffectGIMPColorize::GetGreen>},
    {"EFFECT_GIMP_COLORIZE", "blue", &ValueIn<GIMPColorizeSettings, &SettingsEffectGIMPColorize::GetBlue>},
    {"EFFECT_GIMP_COLORIZE", "intensity", &ValueIn<GIMPColorizeSettings, &SettingsEffectGIMPColorize::GetIntensity>},
    {"EFFECT_GIMP_HUE_SATURATION", "hueMaster", &MasterValueIn<&SettingsEffectGIMPHueSaturation::GetHue>},
    {"EFFECT_GIMP_HUE_SATURATION", "lightnessMaster", &MasterValueIn<&SettingsEffectGIMPHueSaturation::GetLightness>},
    {"EFFECT_GIMP_HUE_SATURATION", "saturationMaster", &MasterValueIn<&SettingsEffectGIMPHueSaturation::GetSaturation>},
    {"EFFECT_GIMP_HUE_SATURATION", "intensity",
     &ValueIn<GIMPHueSaturationSettings, &SettingsEffectGIMPHueSaturation::GetIntensity>},
    {"EFFECT_GIMP_HUE_SATURATION", "overlap",
     &ValueIn<GIMPHueSaturationSettings, &SettingsEffectGIMPHueSaturation::GetOverlap>},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "shadows",
     &ValueIn<GIMPShadowsHightlightsSettings, &SettingsEffectGIMPShadowsHightlights::GetShadows>},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "shadowsColorCorrect",
     &ValueIn<GIMPShadowsHightlightsSettings, &SettingsEffectGIMPShadowsHightlights::GetShadowsColorCorrect>},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "highlights",
     &ValueIn<GIMPShadowsHightlightsSettings, &SettingsEffectGIMPShadowsHightlights::GetHighlights>},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "highlightsColorCorrect",
     &ValueIn<GIMPShadowsHightlightsSettings, &SettingsEffectGIMPShadowsHightlights::GetHighlightsColorCorrect>},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "whitepoint",
     &ValueIn<GIMPShadowsHightlightsSettings, &SettingsEffectGIMPShadowsHightlights::GetWhitepoint>},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "compress",
     &ValueIn<GIMPShadowsHightlightsSettings, &SettingsEffectGIMPShadowsHightlights::GetCompress>},
    {"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", "intensity",
     &ValueIn<GIMPShadowsHightlightsSettings, &SettingsEffectGIMPShadowsHightlights::GetIntensity>},
    {"EFFECT_COLOR_FILTER", "RFactor", &ValueIn<ColorFilterSettings, &SettingsEffectColorFilter::GetRFactor>},
    {"EFFECT_COLOR_FILTER", "GFactor", &ValueIn<ColorFilterSettings, &SettingsEffectColorFilter::GetGFactor>},
    {"EFFECT_COLOR_FILTER", "BFactor", &ValueIn<ColorFilterSettings, &SettingsEffectColorFilter::GetBFactor>},
    {"EFFECT_COLOR_FILTER", "colorFactor", &ValueIn<ColorFilterSettings, &SettingsEffectColorFilter::GetColorFactor>},
    {"EFFECT_COLOR_FILTER", "intensity", &ValueIn<ColorFilterSettings, &SettingsEffectColorFilter::GetIntensity>},
    {"EFFECT_RETRO_COLORS", "intensity", &ValueIn<RetroColorsSettings, &SettingsEffectRetroColors::GetIntensity>},
};

class SingleFloatKeysTest : public testing::TestWithParam<Key>
{
protected:
    static void ExpectReadAs(double expected, const Ombrel::PropertyTree& given)
    {
        const auto effect = IEffectSettings::CreateEffectSettings(GetParam().classId);
        effect->Deserialize(Map({{GetParam().key, given}}));
        EXPECT_EQ(GetParam().valueIn(*effect), static_cast<float>(expected));
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
