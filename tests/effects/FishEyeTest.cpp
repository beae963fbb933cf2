#include "Proc/EffectSettings/FishEyeSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectFishEye;
using Support::Map;
using Support::StoredForm;

SettingsEffectFishEye Record(double deviation, float intensity)
{
    SettingsEffectFishEye record;
    record.SetIntensity(intensity);
    record.SetDeviation(deviation);
    return record;
}

TEST(FishEye, TheDeviationIsTheIntensityTimesAFactor)
{
    SettingsEffectFishEye record = Record(3.0, 0.5f);
    EXPECT_EQ(record.GetDeviation(), 3.0);
    record.SetIntensity(0.25f);
    EXPECT_EQ(record.GetDeviation(), 1.5);
    record.SetIntensity(-1.0f);
    EXPECT_EQ(record.GetDeviation(), -6.0);
    record.SetDeviation(6.0);
    EXPECT_EQ(record.GetDeviation(), 6.0);
}

TEST(FishEye, TheProductIsTakenIn64Bits)
{
    SettingsEffectFishEye record = Record(0.1, 1.0f);
    EXPECT_EQ(record.GetDeviation(), 0.1);
    record.SetIntensity(0.1f); // 0.100000001490116...
    EXPECT_DOUBLE_EQ(record.GetDeviation(), 0.0100000001490116119);
}

TEST(FishEye, WhereNoFactorReachesTheDeviationItIsTheFactor)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const float intensity : {0.0f, -0.0f, infinity, -infinity, std::nanf("")})
    {
        SettingsEffectFishEye record = Record(5.0, intensity);
        record.SetIntensity(1.0f);
        EXPECT_EQ(record.GetDeviation(), 5.0) << intensity;
    }
    EXPECT_EQ(Record(5.0, 0.0f).GetDeviation(), 0.0);
}

// The smallest intensity and the largest deviations: the quotient of the two does not fit 64 bits.
TEST(FishEye, WhereTheFactorWouldBeInfiniteItIsTheDeviation)
{
    constexpr float smallest = std::numeric_limits<float>::denorm_min();
    constexpr double largest = std::numeric_limits<double>::max();
    for (const float intensity : {smallest, -smallest})
    {
        for (const double deviation : {1e300, -1e300, largest, -largest})
        {
            SettingsEffectFishEye record = Record(deviation, intensity);
            EXPECT_EQ(record.GetDeviation(), static_cast<double>(intensity) * deviation);
            record.SetIntensity(1.0f);
            EXPECT_EQ(record.GetDeviation(), deviation) << intensity;
        }
    }
    EXPECT_EQ(Record(largest, 0.5f).GetDeviation(), largest / 2);
    EXPECT_DOUBLE_EQ(Record(1e260, smallest).GetDeviation(), 1e260) << "a quotient that fits";
}

// A third of the largest number is rounded up, and three times that no longer fits.
TEST(FishEye, TheDeviationStaysFiniteWhereTheQuotientIsRoundedUp)
{
    constexpr double largest = std::numeric_limits<double>::max();
    for (const float intensity : {3.0f, -3.0f, 5.0f, 7.0f, 236.85289f})
    {
        EXPECT_DOUBLE_EQ(Record(largest, intensity).GetDeviation(), largest) << intensity;
        EXPECT_DOUBLE_EQ(Record(-largest, intensity).GetDeviation(), -largest) << intensity;
    }
}

TEST(FishEye, AnInfiniteDeviationIsShown)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const float intensity : {0.5f, -0.5f, 3.0f, std::numeric_limits<float>::denorm_min()})
    {
        EXPECT_EQ(Record(infinity, intensity).GetDeviation(), infinity) << intensity;
        EXPECT_EQ(Record(-infinity, intensity).GetDeviation(), -infinity) << intensity;
    }
}

TEST(FishEye, TheDeviationIsReadBeforeTheIntensity)
{
    FishEyeSettings fresh;
    fresh.Deserialize(Map({{"deviation", 4.0}, {"intensity", 0.5}}));
    EXPECT_EQ(fresh.GetTypedSettings().GetDeviation(), 2.0);

    FishEyeSettings used(Record(1.0, 0.25f));
    used.Deserialize(Map({{"deviation", 4.0}, {"intensity", 0.5}}));
    EXPECT_EQ(used.GetTypedSettings().GetDeviation(), 8.0);

    FishEyeSettings faded(Record(1.0, 0.0f));
    faded.Deserialize(Map({{"deviation", 4.0}}));
    EXPECT_EQ(faded.GetTypedSettings().GetDeviation(), 4.0);
}

TEST(FishEye, TheProductIsWhatIsWrittenAndLeftOut)
{
    EXPECT_EQ(StoredForm(FishEyeSettings(Record(3.0, 0.5f))), Map({{"deviation", 3.0}, {"intensity", 0.5}}));

    FishEyeSettings faded(Record(3.0, 1.0f));
    faded.GetTypedSettings().SetIntensity(0.0f);
    EXPECT_EQ(StoredForm(faded), Map({{"intensity", 0.0}}));
}

TEST(FishEye, AnEmptyTreeRestoresTheDefaultFromAnyState)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const float intensity : {0.0f, 0.5f, -2.0f, infinity, std::nanf("")})
    {
        FishEyeSettings effect(Record(3.0, intensity));
        effect.Deserialize(Map({}));
        EXPECT_TRUE(effect == FishEyeSettings()) << intensity;
        EXPECT_EQ(StoredForm(effect), Map({})) << intensity;
    }
}

TEST(FishEye, ComparesTheFactorEvenWhereItShowsNothing)
{
    SettingsEffectFishEye a = Record(3.0, 1.0f);
    SettingsEffectFishEye b = Record(4.0, 1.0f);
    a.SetIntensity(0.0f);
    b.SetIntensity(0.0f);
    EXPECT_EQ(a.GetDeviation(), b.GetDeviation());
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(Record(0.0, 1.0f) == Record(0.0, 2.0f));
    EXPECT_TRUE(Record(3.0, 0.5f) == Record(3.0, 0.5f));
}

TEST(FishEye, TheIntensityIsNarrowed)
{
    FishEyeSettings effect;
    effect.Deserialize(Map({{"intensity", 0.1}}));
    EXPECT_EQ(effect.GetTypedSettings().GetIntensity(), 0.1f);
    EXPECT_EQ(StoredForm(effect), Map({{"intensity", 0.10000000149011612}}));
}

} // namespace
