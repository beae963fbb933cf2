#include "Proc/EffectSettings/GradientSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>

namespace Ombrel::Proc
{

void PrintTo(const RgbaColor& color, std::ostream* out)
{
    *out << ToText(color);
}

} // namespace Ombrel::Proc

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::GradientSettings;
using Ombrel::Proc::RgbaColor;
using Support::List;
using Support::Map;
using Support::StoredForm;

using Gradient = std::map<std::uint8_t, RgbaColor>;

constexpr RgbaColor RED{255, 0, 0, 255};
constexpr RgbaColor BLUE{0, 0, 255, 255};

PropertyTree Entry(int key, const char* color)
{
    return Map({{"key", key}, {"value", color}});
}

GradientSettings WithGradient(const Gradient& gradient)
{
    GradientSettings effect;
    effect.GetTypedSettings().m_gradient = gradient;
    return effect;
}

TEST(Gradient, LaterElementOfTheSameByteWins)
{
    GradientSettings effect;
    effect.Deserialize(Map({{"gradient", List({Entry(10, "ff0000ff"), Entry(266, "0000ffff")})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_gradient, (Gradient{{10, BLUE}}));

    effect = GradientSettings();
    effect.Deserialize(Map({{"gradient", List({Entry(256, "ff0000ff"), Entry(0, "0000ffff")})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_gradient, (Gradient{{0, BLUE}}));
}

TEST(Gradient, EntriesThatTheListDoesNotNameStay)
{
    GradientSettings effect = WithGradient({{1, RED}, {2, RED}});
    effect.Deserialize(Map({{"gradient", List({Entry(2, "0000ffff"), Entry(3, "0000ffff")})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_gradient, (Gradient{{1, RED}, {2, BLUE}, {3, BLUE}}));
}

TEST(Gradient, OnlyAMissingKeyEmptiesIt)
{
    for (const PropertyTree& value : {List({}), PropertyTree(5), Map({}), PropertyTree()})
    {
        GradientSettings effect = WithGradient({{1, RED}});
        effect.Deserialize(Map({{"gradient", value}}));
        EXPECT_EQ(effect.GetTypedSettings().m_gradient, (Gradient{{1, RED}})) << testing::PrintToString(value);
    }
    GradientSettings effect = WithGradient({{1, RED}});
    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().m_gradient, Gradient{});
}

TEST(Gradient, WritesItsEntriesInAscendingOrder)
{
    const GradientSettings effect = WithGradient({{200, BLUE}, {0, RED}, {31, {0x12, 0xab, 0x56, 0xcd}}});
    EXPECT_EQ(StoredForm(effect),
              Map({{"gradient", List({Entry(0, "ff0000ff"), Entry(31, "12ab56cd"), Entry(200, "0000ffff")})}}));
}

TEST(Gradient, KeepsWhatStandsBeforeABadElement)
{
    GradientSettings effect;
    EXPECT_THROW(effect.Deserialize(Map({{"gradient", List({Entry(1, "ff0000ff"), Map({{"key", 2}}), Entry(3, "ff0000ff")})}})),
                 std::out_of_range);
    EXPECT_EQ(effect.GetTypedSettings().m_gradient, (Gradient{{1, RED}}));
    EXPECT_THROW(effect.Deserialize(Map({{"gradient", List({Entry(2, "no color")})}})), std::invalid_argument);
    EXPECT_EQ(effect.GetTypedSettings().m_gradient, (Gradient{{1, RED}}));
}

TEST(Gradient, RecordIsEmptyWithoutEntries)
{
    EXPECT_TRUE(WithGradient({}).GetEffectSettings().IsEmpty());
    EXPECT_FALSE(WithGradient({{0, RED}}).GetEffectSettings().IsEmpty());
    EXPECT_FALSE(WithGradient({}).IsEmpty());
}

} // namespace
