#include "Proc/EffectSettings/ColorReduceSettings.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::ColorReduceSettings;
using Ombrel::Proc::SettingsEffectColorReduce;
using Support::Map;

using ReducedColor = SettingsEffectColorReduce::ReducedColor;

TEST(ColorReduce, HasNoAlphaToReduce)
{
    ColorReduceSettings effect;
    effect.GetTypedSettings().m_reducedColor = ReducedColor::Blue;
    effect.Deserialize(Map({{"reducedColor", "Alpha"}}));
    EXPECT_EQ(effect.GetTypedSettings().m_reducedColor, ReducedColor::Red);
}

} // namespace
