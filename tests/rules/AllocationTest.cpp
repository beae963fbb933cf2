#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/AdjusterSettings.h"
#include "PropertyTree/PropertyTree.h"
#include "support/FailingMemory.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

// How much memory the ways to a tree and back take: an editor goes them on every step of a slider.

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Support::AllocationsOf;
using Support::Map;

std::size_t AllocationsOfWriting(const IEffectSettings& effect)
{
    PropertyTree first;
    effect.Serialize(first); // makes what is made once
    PropertyTree tree;
    return AllocationsOf([&] { effect.Serialize(tree); });
}

// Every plain value, and one in each nested record.
AdjusterSettings FullAdjuster()
{
    AdjusterSettings effect;
    Ombrel::Proc::SettingsEffectAdjuster& record = effect.GetTypedSettings();
    record.m_colorBalanceAuto.m_exposure = 1;
    record.m_colorBalance.SetHue(2);
    record.m_vibrance.m_strength = 3;
    record.m_detailsEnhance.m_strength = 4;
    record.m_smartBlur.SetLumaBlur(5);
    for (double* value : {&record.m_colorizeHue, &record.m_colorizeSaturation, &record.m_colorizeLightness,
                          &record.m_colorizeIntensity, &record.m_temperature, &record.m_temperatureIntensity,
                          &record.m_brightness, &record.m_contrast, &record.m_gamma, &record.m_hue, &record.m_hueIntensity,
                          &record.m_highlights, &record.m_highlightsIntensity, &record.m_shadows, &record.m_shadowsIntensity})
    {
        *value += 0.5;
    }
    return effect;
}

TEST(Allocation, OfWritingADefaultEffectIsNone)
{
    EXPECT_EQ(AllocationsOfWriting(AdjusterSettings()), 0u);
    EXPECT_EQ(AllocationsOfWriting(AcidSettings()), 0u);
}

TEST(Allocation, OfWritingIsOnePerMap)
{
    AdjusterSettings effect;
    effect.GetTypedSettings().m_highlights = 1;
    effect.GetTypedSettings().m_shadows = 2;
    EXPECT_EQ(AllocationsOfWriting(effect), 1u);
    EXPECT_EQ(AllocationsOfWriting(FullAdjuster()), 6u);
}

TEST(Allocation, OfTheClassIdIsNone)
{
    const auto effect = std::make_shared<AcidSettings>();
    effect->GetTypedSettings().radius = 3;
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect); // the first write makes the class id and the default records
    tree = PropertyTree();
    EXPECT_EQ(AllocationsOf([&] { EffectSettings::SerializePtr(tree, effect); }), 1u);
    EXPECT_EQ(tree, Map({{"name", "EFFECT_ACID"}, {"radius", 3}}));
}

TEST(Allocation, OfReadingIsNone)
{
    PropertyTree tree;
    FullAdjuster().Serialize(tree);
    AdjusterSettings effect;
    EXPECT_EQ(AllocationsOf([&] { effect.Deserialize(tree); }), 0u);
    EXPECT_EQ(effect, FullAdjuster());
    EXPECT_EQ(AllocationsOf([&] { effect.Deserialize(Map({})); }), 0u);
    EXPECT_EQ(effect, AdjusterSettings());
}

TEST(Allocation, OfOnePropertyIsNone)
{
    AdjusterSettings effect = FullAdjuster();
    const std::string key = "highlights";
    const auto access = effect.GetPropertyAccess();
    EXPECT_EQ(AllocationsOf([&] { EXPECT_EQ(access->GetProperty(key), PropertyTree(0.5)); }), 0u);
    EXPECT_EQ(AllocationsOf([&] { access->SetProperty(key, PropertyTree(7.5)); }), 0u);
    EXPECT_EQ(effect.GetTypedSettings().m_highlights, 7.5);
}

} // namespace
