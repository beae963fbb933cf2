#include "Proc/EffectSettings/GradientPosterizeSettings.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::GradientPosterizeSettings;
using Support::Map;

TEST(GradientPosterize, CutsItsColorCountToEightBits)
{
    GradientPosterizeSettings effect;
    effect.Deserialize(Map({{"colorCount", 259}}));
    EXPECT_EQ(effect.GetTypedSettings().m_colorCount, 3);
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());

    effect.Deserialize(Map({{"colorCount", 256}}));
    EXPECT_EQ(effect.GetTypedSettings().m_colorCount, 0);
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
}

} // namespace
