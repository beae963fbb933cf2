#include "Proc/EffectSettings/CharcoalSettings.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using Ombrel::PhotoCore::CharcoalSettings;

TEST(Charcoal, OnlyTheRecordIsEmptyAndOnlyForItsRadius)
{
    CharcoalSettings effect;
    EXPECT_TRUE(effect.GetTypedSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());

    effect.GetTypedSettings().m_sigma = 2.0;
    EXPECT_TRUE(effect.GetTypedSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());

    effect.GetTypedSettings().m_radius = -1;
    EXPECT_FALSE(effect.GetTypedSettings().IsEmpty());
    effect.GetTypedSettings().m_sigma = 0.0;
    EXPECT_FALSE(effect.GetTypedSettings().IsEmpty());
}

} // namespace
