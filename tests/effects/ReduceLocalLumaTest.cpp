#include "Proc/EffectSettings/ReduceLocalLumaSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using Ombrel::PhotoCore::ReduceLocalLumaSettings;
using Ombrel::Proc::SettingsEffectReduceLocalLuma;
using Support::Map;
using Support::StoredForm;

TEST(ReduceLocalLuma, IsMadeOfFiveValues)
{
    const ReduceLocalLumaSettings effect(SettingsEffectReduceLocalLuma(1, 2, 3, 4, 0.5));
    EXPECT_EQ(StoredForm(effect), Map({{"x", 1}, {"y", 2}, {"width", 3}, {"height", 4}, {"strength", 0.5}}));
    EXPECT_TRUE(ReduceLocalLumaSettings() == ReduceLocalLumaSettings(SettingsEffectReduceLocalLuma(0, 0, 0, 0, 1.0)));
}

TEST(ReduceLocalLuma, ItsRecordIsEmptyWithoutStrength)
{
    const ReduceLocalLumaSettings weak(SettingsEffectReduceLocalLuma(1, 2, 3, 4, 0.0));
    EXPECT_TRUE(weak.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(weak.IsEmpty());
    EXPECT_FALSE(SettingsEffectReduceLocalLuma(0, 0, 0, 0, 1e-300).IsEmpty());
}

TEST(ReduceLocalLuma, ComparesItsStrengthExactly)
{
    EXPECT_FALSE(SettingsEffectReduceLocalLuma(0, 0, 0, 0, 1.0) == SettingsEffectReduceLocalLuma(0, 0, 0, 0, 1.000001));
    const SettingsEffectReduceLocalLuma noNumber(0, 0, 0, 0, std::nan(""));
    EXPECT_FALSE(noNumber == noNumber);
}

} // namespace
