#include "Proc/EffectSettings/BlurMotionSettings.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace
{

using Ombrel::PhotoCore::BlurMotionSettings;
using Ombrel::Proc::SettingsEffectBlurMotion;
using Support::Map;

TEST(BlurMotion, ReadsAWholeRadius)
{
    BlurMotionSettings effect;
    effect.Deserialize(Map({{"radius", 2.7}}));
    EXPECT_EQ(effect.GetTypedSettings().m_radius, 2);
    effect.Deserialize(Map({{"radius", std::int64_t{4294967301}}}));
    EXPECT_EQ(effect.GetTypedSettings().m_radius, 5);
}

TEST(BlurMotion, RecordIsEmptyWithoutARadius)
{
    SettingsEffectBlurMotion record;
    record.m_sigma = 2.0;
    record.m_angle = 45.0;
    EXPECT_TRUE(record.IsEmpty());
    record.m_radius = 1;
    record.m_sigma = 0.0;
    EXPECT_FALSE(record.IsEmpty());
}

} // namespace
