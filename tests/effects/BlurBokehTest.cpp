#include "Proc/EffectSettings/BlurBokehSettings.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::BlurBokehSettings;
using Ombrel::Proc::SettingsEffectBlurBokeh;

TEST(BlurBokeh, DefaultRecordIsEmptyAndTheEffectIsNot)
{
    const BlurBokehSettings effect;
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
}

TEST(BlurBokeh, RecordNeedsBokehSizeAndStrength)
{
    SettingsEffectBlurBokeh whole;
    whole.m_bokeh = "hexagon";
    whole.m_strength = 0.4;
    EXPECT_FALSE(whole.IsEmpty());

    SettingsEffectBlurBokeh part = whole;
    part.m_bokeh.clear();
    EXPECT_TRUE(part.IsEmpty()) << "without a bokeh";

    part = whole;
    part.m_size = 0.0;
    EXPECT_TRUE(part.IsEmpty()) << "without a size";

    part = whole;
    part.m_strength = 0.0;
    EXPECT_TRUE(part.IsEmpty()) << "without strength";
}

TEST(BlurBokeh, RecordIsNotEmptyForItsGainsAndThresholds)
{
    SettingsEffectBlurBokeh record;
    record.m_bokeh = "hexagon";
    record.m_strength = 0.4;
    record.m_bokehGain = record.m_imageGain = 0.0;
    record.m_threshold = record.m_bokehThreshold = record.m_imageThreshold = 0.0;
    EXPECT_FALSE(record.IsEmpty());
}

TEST(BlurBokeh, ComparesEveryByteOfTheBokeh)
{
    SettingsEffectBlurBokeh a;
    SettingsEffectBlurBokeh b;
    a.m_bokeh = std::string("a\0b", 3);
    b.m_bokeh = std::string("a\0c", 3);
    EXPECT_FALSE(a == b);
    b.m_bokeh = a.m_bokeh;
    EXPECT_TRUE(a == b);
}

} // namespace
