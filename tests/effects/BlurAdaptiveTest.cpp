#include "Proc/EffectSettings/BlurAdaptiveSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using Ombrel::PhotoCore::BlurAdaptiveSettings;
using Ombrel::Proc::SettingsEffectBlurAdaptive;
using Support::Map;
using Support::StoredForm;

constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

TEST(BlurAdaptive, StoresOnlyTheRadiusThatChanged)
{
    BlurAdaptiveSettings effect;
    effect.GetTypedSettings().m_radius = 3.5;
    EXPECT_EQ(StoredForm(effect), Map({{"radius", 3.5}}));
}

TEST(BlurAdaptive, KeepsTheFractionOfItsRadius)
{
    BlurAdaptiveSettings effect;
    effect.Deserialize(Map({{"radius", 2.7}}));
    EXPECT_EQ(effect.GetTypedSettings().m_radius, 2.7);
}

TEST(BlurAdaptive, RecordIsEmptyWithoutRadiusOrSigma)
{
    SettingsEffectBlurAdaptive record;
    EXPECT_FALSE(record.IsEmpty());

    record.m_radius = 0.0;
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_FALSE(BlurAdaptiveSettings(record).IsEmpty());

    record.m_radius = 3.0;
    record.m_sigma = 0.0;
    EXPECT_TRUE(record.IsEmpty());
}

TEST(BlurAdaptive, NotANumberIsNeitherZeroNorItself)
{
    SettingsEffectBlurAdaptive record;
    record.m_radius = NOT_A_NUMBER;
    record.m_sigma = NOT_A_NUMBER;
    EXPECT_FALSE(record.IsEmpty());
    EXPECT_FALSE(record == record);
}

} // namespace
