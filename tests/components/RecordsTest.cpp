#include "Proc/Settings/SettingsEffectAcid.h"
#include "Proc/Settings/SettingsEffectAdjuster.h"
#include "Proc/Settings/SettingsEffectColorBalance.h"
#include "Proc/Settings/SettingsEffectEmpty.h"
#include "Proc/Settings/SettingsEffectSmartBlur.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <typeinfo>
#include <utility>

namespace
{

using namespace Ombrel::Proc;

TEST(Acid, IsEmptyByItsRadius)
{
    SettingsEffectAcid record;
    EXPECT_TRUE(record.IsEmpty());
    record.sigma = 3.0;
    EXPECT_TRUE(record.IsEmpty());
    record.radius = -1;
    EXPECT_FALSE(record.IsEmpty());
}

TEST(Acid, ComparesExactly)
{
    SettingsEffectAcid a;
    SettingsEffectAcid b;
    EXPECT_TRUE(a == b);
    b.sigma = std::nextafter(0.5, 1.0);
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a.IsEqualTo(b));
    a.sigma = b.sigma = std::nan("");
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a == a); // NOLINT(misc-redundant-expression): a NaN makes a record unlike itself
}

TEST(ColorBalance, HueIsBroughtIntoOneTurn)
{
    constexpr std::pair<int, int> cases[] = {
        {0, 0},
        {180, 180},
        {-180, -180},
        {181, -179},
        {-181, 179},
        {179, 179},
        {360, 0},
        {540, -180},
        {900, -180},
        {-540, -180},
        {720, 0},
        {-360, 0},
        {359, -1},
        {-359, 1},
        {std::numeric_limits<int>::max(), 127},
        {std::numeric_limits<int>::min(), -128},
    };
    for (const auto& [given, stored] : cases)
    {
        SettingsEffectColorBalance record;
        record.SetHue(given);
        EXPECT_EQ(record.GetHue(), stored) << given;
    }
}

TEST(ColorBalance, StoresTheOtherValuesAsGiven)
{
    SettingsEffectColorBalance record;
    record.SetBrightness(1000);
    record.SetContrast(-1000);
    record.SetSaturation(300);
    record.SetGamma(400);
    record.SetGammaRed(1);
    record.SetGammaGreen(2);
    record.SetGammaBlue(3);
    record.SetGammaWeight(4);
    EXPECT_EQ(record.GetBrightness(), 1000);
    EXPECT_EQ(record.GetContrast(), -1000);
    EXPECT_EQ(record.GetSaturation(), 300);
    EXPECT_EQ(record.GetGamma(), 400);
    EXPECT_EQ(record.GetGammaRed(), 1);
    EXPECT_EQ(record.GetGammaGreen(), 2);
    EXPECT_EQ(record.GetGammaBlue(), 3);
    EXPECT_EQ(record.GetGammaWeight(), 4);
}

template <class Record> void ExpectEveryValueCounts(std::initializer_list<void (Record::*)(std::int32_t)> setters)
{
    EXPECT_TRUE(Record().IsEmpty());
    for (const auto setter : setters)
    {
        Record record;
        (record.*setter)(1);
        EXPECT_FALSE(record.IsEmpty());
        EXPECT_FALSE(record == Record());
        (record.*setter)(0);
        EXPECT_TRUE(record.IsEmpty());
        EXPECT_TRUE(record == Record());
    }
}

TEST(ColorBalance, EveryValueCounts)
{
    using R = SettingsEffectColorBalance;
    ExpectEveryValueCounts<R>({&R::SetBrightness, &R::SetContrast, &R::SetSaturation, &R::SetHue, &R::SetGamma, &R::SetGammaRed,
                               &R::SetGammaGreen, &R::SetGammaBlue, &R::SetGammaWeight});
}

TEST(SmartBlur, EveryValueCounts)
{
    using R = SettingsEffectSmartBlur;
    ExpectEveryValueCounts<R>({&R::SetLumaRadius, &R::SetLumaBlur, &R::SetLumaSharpen, &R::SetLumaThreshold,
                               &R::SetChromaRadius, &R::SetChromaBlur, &R::SetChromaSharpen, &R::SetChromaThreshold});
}

TEST(SmartBlur, StoresEachValueApart)
{
    SettingsEffectSmartBlur record;
    record.SetLumaRadius(1);
    record.SetChromaRadius(2);
    record.SetLumaBlur(3);
    record.SetChromaBlur(4);
    record.SetLumaSharpen(5);
    record.SetChromaSharpen(6);
    record.SetLumaThreshold(7);
    record.SetChromaThreshold(8);
    EXPECT_EQ(record.GetLumaRadius(), 1);
    EXPECT_EQ(record.GetChromaRadius(), 2);
    EXPECT_EQ(record.GetLumaBlur(), 3);
    EXPECT_EQ(record.GetChromaBlur(), 4);
    EXPECT_EQ(record.GetLumaSharpen(), 5);
    EXPECT_EQ(record.GetChromaSharpen(), 6);
    EXPECT_EQ(record.GetLumaThreshold(), 7);
    EXPECT_EQ(record.GetChromaThreshold(), 8);
}

TEST(Adjuster, StartsItsSmartBlurAtAHundred)
{
    const SettingsEffectAdjuster record;
    EXPECT_EQ(record.m_smartBlur.GetLumaRadius(), 100);
    EXPECT_EQ(record.m_smartBlur.GetChromaRadius(), 100);
    EXPECT_EQ(record.m_smartBlur.GetLumaBlur(), 0);
    EXPECT_EQ(SettingsEffectSmartBlur().GetLumaRadius(), 0);
    EXPECT_FALSE(record.IsEmpty());
}

TEST(Adjuster, ComparesNestedRecordsAndFloatsExactly)
{
    SettingsEffectAdjuster a;
    SettingsEffectAdjuster b;
    EXPECT_TRUE(a == b);
    b.m_smartBlur.SetLumaRadius(99);
    EXPECT_FALSE(a == b);
    b = a;
    b.m_colorBalance.SetGammaWeight(1);
    EXPECT_FALSE(a == b);
    b = a;
    b.m_shadowsIntensity = std::nextafter(1.0, 2.0);
    EXPECT_FALSE(a == b);
    b = a;
    b.m_gamma = -0.0;
    EXPECT_TRUE(a == b);
}

TEST(Empty, ComparesItsValueAsARecord)
{
    SettingsEffectEmpty a;
    SettingsEffectEmpty b;
    EXPECT_TRUE(a.IsEqualTo(b));
    b.m_value = "x";
    EXPECT_FALSE(a.IsEqualTo(b));
    EXPECT_FALSE(a.IsEmpty());
}

TEST(Records, RefuseAnotherType)
{
    EXPECT_THROW(SettingsEffectAcid().IsEqualTo(SettingsEffectEmpty()), std::bad_cast);
    EXPECT_THROW(SettingsEffectVibrance().IsEqualTo(SettingsEffectDetailsEnhance()), std::bad_cast);
}

} // namespace
