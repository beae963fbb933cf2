#include "Proc/EffectSettings/HistogramSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace
{

using Ombrel::PixFmt;
using Ombrel::PhotoCore::HistogramSettings;
using Support::Map;
using Support::StoredForm;

TEST(Histogram, SizesHaveNoSign)
{
    HistogramSettings effect;
    effect.Deserialize(Map({{"width", -1}, {"heightLevel", -1}, {"heightScale", std::int64_t{4294967298}}, {"sharpen", -3}}));
    EXPECT_EQ(effect.GetTypedSettings().m_width, 4294967295u);
    EXPECT_EQ(effect.GetTypedSettings().m_sharpen, -3);
    EXPECT_EQ(StoredForm(effect), Map({{"width", std::int64_t{4294967295}},
                                       {"heightLevel", std::int64_t{4294967295}},
                                       {"heightScale", 2},
                                       {"sharpen", -3}}));
}

TEST(Histogram, FlagsHaveSixtyFourBits)
{
    HistogramSettings effect;
    EXPECT_EQ(effect.GetTypedSettings().m_flags, std::int64_t{-1});
    effect.Deserialize(Map({{"flags", std::int64_t{0x0123456789abcdef}}}));
    EXPECT_EQ(effect.GetTypedSettings().m_flags, std::int64_t{0x0123456789abcdef});
}

TEST(Histogram, UnknownPixelFormatIsNoneAndNotTheDefault)
{
    HistogramSettings effect;
    EXPECT_EQ(effect.GetTypedSettings().m_pixFmt, PixFmt::RGB24);
    effect.Deserialize(Map({{"pixFmt", "RGB25"}}));
    EXPECT_EQ(effect.GetTypedSettings().m_pixFmt, PixFmt::None);
    EXPECT_EQ(StoredForm(effect), Map({{"pixFmt", "None"}}));
}

TEST(Histogram, RecordIsNeverEmpty)
{
    HistogramSettings effect;
    effect.GetTypedSettings().m_width = 0;
    effect.GetTypedSettings().m_flags = 0;
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
}

} // namespace
