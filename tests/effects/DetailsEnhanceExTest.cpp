#include "Proc/EffectSettings/DetailsEnhanceExSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using Ombrel::PhotoCore::DetailsEnhanceExSettings;
using Ombrel::Proc::SettingsEffectDetailsEnhanceEx;
using Support::Map;
using Support::StoredForm;

TEST(DetailsEnhanceEx, StoresAFractionOfStrength)
{
    DetailsEnhanceExSettings effect;
    EXPECT_EQ(StoredForm(effect), Map({}));
    effect.GetTypedSettings().m_strength = 0.5;
    EXPECT_EQ(StoredForm(effect), Map({{"strength", 0.5}}));
}

TEST(DetailsEnhanceEx, RecordIsEmptyWithoutStrength)
{
    SettingsEffectDetailsEnhanceEx record;
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_FALSE(DetailsEnhanceExSettings(record).IsEmpty());
    record.m_strength = 0.5;
    EXPECT_FALSE(record.IsEmpty());
}

TEST(DetailsEnhanceEx, NotANumberIsNeitherZeroNorItself)
{
    SettingsEffectDetailsEnhanceEx record;
    record.m_strength = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(record.IsEmpty());
    EXPECT_FALSE(record == record);
}

} // namespace
