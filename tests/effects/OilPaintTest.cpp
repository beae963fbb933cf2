#include "Proc/EffectSettings/OilPaintSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace
{

using Ombrel::PhotoCore::OilPaintSettings;
using Ombrel::Proc::SettingsEffectOilPaint;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

constexpr std::int32_t MOST = 2147483647;
constexpr std::int32_t LEAST = -2147483647 - 1;
constexpr float INFINITE = std::numeric_limits<float>::infinity();

SettingsEffectOilPaint Record(std::int32_t radius, float intensity)
{
    SettingsEffectOilPaint record;
    record.SetRadius(radius);
    record.SetIntensity(intensity);
    return record;
}

struct Case
{
    std::int32_t radius;
    float intensity;
    std::int32_t shown;
};

void ExpectShown(std::initializer_list<Case> cases)
{
    for (const auto& [radius, intensity, shown] : cases)
    {
        EXPECT_EQ(Record(radius, intensity).GetRadius(), shown) << radius << " at " << intensity;
    }
}

TEST(OilPaint, TheRadiusIsShownTimesTheIntensityCutTowardsZero)
{
    ExpectShown({{10, 0.5f, 5}, {5, 0.5f, 2}, {-5, 0.5f, -2}, {7, -1.5f, -10}, {7, 1.0f, 7}, {7, 0.0f, 0}, {1, 0.99f, 0}});
}

TEST(OilPaint, TheProductIsTakenIn32Bits)
{
    ExpectShown({{10, 0.7f, 7}, // 0.7f is less than 0.7, and in 64 bits so is the product than 7
                 {16777217, 1.0f, 16777216},
                 {-16777217, 1.0f, -16777216}});
}

TEST(OilPaint, AProductThatDoesNotFitIsTheNearestLimit)
{
    ExpectShown({{MOST, 1.0f, MOST},
                 {MOST, 2.0f, MOST},
                 {MOST, -1.0f, LEAST},
                 {MOST, -2.0f, LEAST},
                 {LEAST, 1.0f, LEAST},
                 {LEAST, -1.0f, MOST},
                 {LEAST, 2.0f, LEAST},
                 {1, INFINITE, MOST},
                 {1, -INFINITE, LEAST},
                 {2147483520, 1.0f, 2147483520}, // the greatest that fits as a float
                 {-2147483520, 1.0f, -2147483520}});
}

TEST(OilPaint, AProductThatIsNoNumberIsZero)
{
    ExpectShown({{5, std::nanf(""), 0}, {MOST, -std::nanf(""), 0}, {0, INFINITE, 0}, {0, -INFINITE, 0}});
}

TEST(OilPaint, EveryReaderSeesTheProduct)
{
    OilPaintSettings effect(Record(10, 0.5f));
    EXPECT_EQ(StoredForm(effect), Map({{"radius", 5}, {"intensity", 0.5}}));
    EXPECT_EQ(effect.GetPropertyAccess()->GetProperty("radius"), Ombrel::PropertyTree(5));

    effect.GetTypedSettings().SetIntensity(1.0f);
    EXPECT_EQ(StoredForm(effect), Map({{"radius", 10}}));
}

TEST(OilPaint, AProductOfZeroIsLeftOut)
{
    const OilPaintSettings effect(Record(10, 0.0f));
    EXPECT_EQ(StoredForm(effect), Map({{"intensity", 0.0}}));
    EXPECT_EQ(effect.GetPropertyAccess()->GetProperty("radius"), Ombrel::PropertyTree(0));
}

TEST(OilPaint, TheRadiusShrinksWithEveryRead)
{
    OilPaintSettings effect(Record(10, 0.5f));
    for (const int stored : {5, 2, 1})
    {
        EXPECT_EQ(StoredForm(effect), Map({{"radius", stored}, {"intensity", 0.5}}));
        effect = Restored<OilPaintSettings>(StoredForm(effect));
    }
    EXPECT_EQ(StoredForm(effect), Map({{"intensity", 0.5}}));
}

TEST(OilPaint, TheRadiusComesBackAtFullIntensity)
{
    for (const std::int32_t radius : {1, 3, -7, 1000, MOST, LEAST})
    {
        const auto restored = Restored<OilPaintSettings>(StoredForm(OilPaintSettings(Record(radius, 1.0f))));
        EXPECT_TRUE(restored.GetTypedSettings() == Record(radius, 1.0f)) << radius;
    }
}

TEST(OilPaint, SettingTheRadiusStoresItUnscaled)
{
    OilPaintSettings effect(Record(0, 0.5f));
    effect.GetPropertyAccess()->SetProperty("radius", 9);
    EXPECT_EQ(effect.GetTypedSettings().GetRadius(), 4);
    EXPECT_TRUE(effect.GetTypedSettings() == Record(9, 0.5f));
}

TEST(OilPaint, AnEmptyTreeRestoresTheDefaultFromAnyState)
{
    for (const float intensity : {0.0f, 0.5f, -2.0f, INFINITE, std::nanf("")})
    {
        OilPaintSettings effect(Record(3, intensity));
        effect.Deserialize(Map({}));
        EXPECT_TRUE(effect == OilPaintSettings()) << intensity;
    }
}

TEST(OilPaint, ComparesTheRadiusEvenWhereItShowsNothing)
{
    EXPECT_FALSE(Record(3, 0.0f) == Record(4, 0.0f));
    EXPECT_FALSE(Record(3, 0.5f) == Record(3, 0.25f));
    EXPECT_TRUE(Record(3, 0.5f) == Record(3, 0.5f));
}

TEST(OilPaint, OnlyTheRecordIsEmptyAndOnlyAsByDefault)
{
    EXPECT_TRUE(OilPaintSettings().GetTypedSettings().IsEmpty());
    EXPECT_FALSE(OilPaintSettings().IsEmpty());
    EXPECT_FALSE(Record(3, 1.0f).IsEmpty());
    EXPECT_FALSE(Record(3, 0.0f).IsEmpty());
    EXPECT_FALSE(Record(0, 0.5f).IsEmpty());
}

} // namespace
