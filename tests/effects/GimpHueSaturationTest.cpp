#include "Proc/EffectSettings/GIMPHueSaturationSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <iterator>
#include <stdexcept>

namespace
{

using Ombrel::PhotoCore::GIMPHueSaturationSettings;
using Ombrel::Proc::SettingsEffectGIMPHueSaturation;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

using HueRange = SettingsEffectGIMPHueSaturation::HueRange;

constexpr HueRange OTHER_RANGES[] = {HueRange::Red,  HueRange::Yellow, HueRange::Green,
                                     HueRange::Cyan, HueRange::Blue,   HueRange::Magenta};

TEST(GimpHueSaturation, NumbersItsRangesFromTheMaster)
{
    EXPECT_EQ(static_cast<int>(HueRange::Master), 0);
    EXPECT_EQ(std::size(OTHER_RANGES), 6u);
}

TEST(GimpHueSaturation, KeysReachTheMasterRangeAlone)
{
    const auto effect = Restored<GIMPHueSaturationSettings>(
        Map({{"hueMaster", 1.5}, {"lightnessMaster", 2.5}, {"saturationMaster", 3.5}, {"intensity", 4.5}, {"overlap", 5.5}}));
    const SettingsEffectGIMPHueSaturation& record = effect.GetTypedSettings();
    EXPECT_EQ(record.GetHue(HueRange::Master), 1.5f);
    EXPECT_EQ(record.GetLightness(HueRange::Master), 2.5f);
    EXPECT_EQ(record.GetSaturation(HueRange::Master), 3.5f);
    EXPECT_EQ(record.GetIntensity(), 4.5f);
    EXPECT_EQ(record.GetOverlap(), 5.5f);
    for (const HueRange range : OTHER_RANGES)
    {
        EXPECT_EQ(record.GetHue(range), 0.0f);
        EXPECT_EQ(record.GetLightness(range), 0.0f);
        EXPECT_EQ(record.GetSaturation(range), 0.0f);
    }
}

TEST(GimpHueSaturation, KeepsItsRangesApart)
{
    SettingsEffectGIMPHueSaturation record;
    for (const HueRange range : OTHER_RANGES)
    {
        const float number = static_cast<float>(range);
        record.SetHue(range, number);
        record.SetLightness(range, number + 10.0f);
        record.SetSaturation(range, number + 20.0f);
    }
    EXPECT_EQ(record.GetHue(HueRange::Master), 0.0f);
    EXPECT_EQ(record.GetHue(HueRange::Red), 1.0f);
    EXPECT_EQ(record.GetHue(HueRange::Magenta), 6.0f);
    EXPECT_EQ(record.GetLightness(HueRange::Master), 0.0f);
    EXPECT_EQ(record.GetLightness(HueRange::Yellow), 12.0f);
    EXPECT_EQ(record.GetLightness(HueRange::Blue), 15.0f);
    EXPECT_EQ(record.GetSaturation(HueRange::Master), 0.0f);
    EXPECT_EQ(record.GetSaturation(HueRange::Green), 23.0f);
    EXPECT_EQ(record.GetSaturation(HueRange::Cyan), 24.0f);
}

TEST(GimpHueSaturation, LosesTheOtherRangesInATree)
{
    GIMPHueSaturationSettings effect;
    effect.GetTypedSettings().SetHue(HueRange::Red, 5.0f);
    EXPECT_EQ(StoredForm(effect), Map({}));

    const auto restored = Restored<GIMPHueSaturationSettings>(StoredForm(effect));
    EXPECT_EQ(restored.GetTypedSettings().GetHue(HueRange::Red), 0.0f);
    EXPECT_FALSE(restored == effect);
}

TEST(GimpHueSaturation, ReadingLeavesTheOtherRanges)
{
    GIMPHueSaturationSettings effect;
    effect.GetTypedSettings().SetHue(HueRange::Master, 4.0f);
    effect.GetTypedSettings().SetHue(HueRange::Red, 5.0f);
    effect.GetTypedSettings().SetLightness(HueRange::Cyan, 6.0f);
    effect.GetTypedSettings().SetSaturation(HueRange::Magenta, 7.0f);
    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().GetHue(HueRange::Master), 0.0f);
    EXPECT_EQ(effect.GetTypedSettings().GetHue(HueRange::Red), 5.0f);
    EXPECT_EQ(effect.GetTypedSettings().GetLightness(HueRange::Cyan), 6.0f);
    EXPECT_EQ(effect.GetTypedSettings().GetSaturation(HueRange::Magenta), 7.0f);
}

TEST(GimpHueSaturation, CopiesAndComparesEveryRange)
{
    for (const HueRange range : OTHER_RANGES)
    {
        for (const auto set : {&SettingsEffectGIMPHueSaturation::SetHue, &SettingsEffectGIMPHueSaturation::SetLightness,
                               &SettingsEffectGIMPHueSaturation::SetSaturation})
        {
            GIMPHueSaturationSettings effect;
            (effect.GetTypedSettings().*set)(range, 5.0f);
            EXPECT_FALSE(effect == GIMPHueSaturationSettings());
            EXPECT_FALSE(effect.GetTypedSettings().IsEmpty());
            EXPECT_TRUE(*effect.Clone() == effect);
        }
    }
}

TEST(GimpHueSaturation, RefusesWhatIsNoRange)
{
    SettingsEffectGIMPHueSaturation record;
    for (const HueRange none : {static_cast<HueRange>(7), static_cast<HueRange>(-1)})
    {
        EXPECT_THROW(record.GetHue(none), std::out_of_range);
        EXPECT_THROW(record.GetLightness(none), std::out_of_range);
        EXPECT_THROW(record.GetSaturation(none), std::out_of_range);
        EXPECT_THROW(record.SetHue(none, 1.0f), std::out_of_range);
        EXPECT_THROW(record.SetLightness(none, 1.0f), std::out_of_range);
        EXPECT_THROW(record.SetSaturation(none, 1.0f), std::out_of_range);
    }
}

} // namespace
