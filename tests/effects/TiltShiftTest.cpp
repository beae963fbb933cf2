#include "Proc/EffectSettings/TiltShiftSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::Proc::SettingsEffectShapeMask;
using Ombrel::Proc::SettingsEffectTiltShift;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(TiltShift, BeginsWithTheMasksOwnDefault)
{
    const SettingsEffectTiltShift record;
    EXPECT_TRUE(record.m_alpha == SettingsEffectShapeMask());
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_FALSE(TiltShiftSettings().IsEmpty());
    EXPECT_FALSE(TiltShiftSettings().IsAdditive());
    EXPECT_EQ(StoredForm(TiltShiftSettings()), Map({}));
}

TEST(TiltShift, ComparesMaskBlurAndSharpening)
{
    for (const auto& values : {Map({{"alpha", Map({{"x", 0.5}})}}), Map({{"blur", 1}}), Map({{"sharpen", 1}})})
    {
        const auto effect = Restored<TiltShiftSettings>(values);
        EXPECT_EQ(StoredForm(effect), values);
        EXPECT_FALSE(effect.GetTypedSettings() == SettingsEffectTiltShift()) << testing::PrintToString(values);
        EXPECT_FALSE(effect.GetTypedSettings().IsEmpty()) << testing::PrintToString(values);
        EXPECT_FALSE(effect.IsEmpty());
    }
}

TEST(TiltShift, OneKeyOfTheMaskLeavesTheOthersAtTheirDefaults)
{
    TiltShiftSettings effect;
    effect.GetTypedSettings().m_alpha.m_width = 7.0;
    effect.GetTypedSettings().m_blur = 7;
    effect.Deserialize(Map({{"alpha", Map({{"foreground", 0}, {"background", 255}})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_foreground, 0);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_background, 255);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_width, 0.0);
    EXPECT_EQ(effect.GetTypedSettings().m_blur, 0);
}

} // namespace
