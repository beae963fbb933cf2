#include "Proc/EffectSettings/ReplaceChromaSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::ReplaceChromaSettings;
using Ombrel::Proc::RgbaColor;
using Ombrel::Proc::SettingsEffectReplaceChroma;
using Support::Map;
using Support::StoredForm;

TEST(ReplaceChroma, TakesItsTwoColorsAtOnce)
{
    const SettingsEffectReplaceChroma record({1, 2, 3, 4}, {5, 6, 7, 8});
    EXPECT_EQ(StoredForm(ReplaceChromaSettings(record)), Map({{"replaceColor", "01020304"}, {"baseColor", "05060708"}}));
}

TEST(ReplaceChroma, ReplacesBlackByWhiteByDefault)
{
    const SettingsEffectReplaceChroma record;
    EXPECT_TRUE(record.m_replaceColor == (RgbaColor{255, 255, 255, 255}));
    EXPECT_TRUE(record.m_baseColor == (RgbaColor{0, 0, 0, 255}));
}

TEST(ReplaceChroma, MissingSwitchesAreOn)
{
    ReplaceChromaSettings effect;
    effect.Deserialize(Map({{"useBaseColor", false}, {"keepLuma", false}}));
    EXPECT_FALSE(effect.GetTypedSettings().m_useBaseColor);
    EXPECT_FALSE(effect.GetTypedSettings().m_keepLuma);
    effect.Deserialize(Map({{"x", 3}}));
    EXPECT_TRUE(effect.GetTypedSettings().m_useBaseColor);
    EXPECT_TRUE(effect.GetTypedSettings().m_keepLuma);
}

TEST(ReplaceChroma, CutsItsBytesToEightBits)
{
    ReplaceChromaSettings effect;
    effect.Deserialize(Map({{"strength", 256}, {"maxValue", 257}, {"minValue", -1}}));
    EXPECT_EQ(effect.GetTypedSettings().m_strength, 0);
    EXPECT_EQ(effect.GetTypedSettings().m_maxValue, 1);
    EXPECT_EQ(effect.GetTypedSettings().m_minValue, 255);
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
}

} // namespace
