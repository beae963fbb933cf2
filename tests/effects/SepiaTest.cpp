#include "Proc/EffectSettings/SepiaSettings.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using Ombrel::PhotoCore::SepiaSettings;

TEST(Sepia, RecordIsEmptyAtZeroExactly)
{
    SepiaSettings effect;
    for (const double zero : {0.0, -0.0})
    {
        effect.GetTypedSettings().m_threshold = zero;
        EXPECT_TRUE(effect.GetTypedSettings().IsEmpty());
        EXPECT_FALSE(effect.IsEmpty());
    }
    for (const double other : {1e-300, -1e-300, 0.5, std::numeric_limits<double>::quiet_NaN()})
    {
        effect.GetTypedSettings().m_threshold = other;
        EXPECT_FALSE(effect.GetTypedSettings().IsEmpty()) << other;
    }
}

} // namespace
