#include "Proc/EffectSettings/RetroArtefactsSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace
{

using Ombrel::PhotoCore::RetroArtefactsSettings;
using Ombrel::Proc::SettingsEffectRetroArtefacts;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

constexpr std::uint32_t MOST = 4294967295;
constexpr float INFINITE = std::numeric_limits<float>::infinity();

struct Amount
{
    const char* key;
    void (SettingsEffectRetroArtefacts::*set)(std::uint32_t);
    std::uint32_t (SettingsEffectRetroArtefacts::*get)() const;
};

constexpr Amount AMOUNTS[] = {
    {"grain", &SettingsEffectRetroArtefacts::SetGrain, &SettingsEffectRetroArtefacts::GetGrain},
    {"scratches", &SettingsEffectRetroArtefacts::SetScratches, &SettingsEffectRetroArtefacts::GetScratches},
    {"rollerTrack", &SettingsEffectRetroArtefacts::SetRollerTrack, &SettingsEffectRetroArtefacts::GetRollerTrack},
};

SettingsEffectRetroArtefacts Record(const Amount& amount, std::uint32_t value, float intensity)
{
    SettingsEffectRetroArtefacts record;
    (record.*amount.set)(value);
    record.SetIntensity(intensity);
    return record;
}

TEST(RetroArtefacts, AmountsAreShownTimesTheIntensity)
{
    struct Case
    {
        std::uint32_t value;
        float intensity;
        std::uint32_t shown;
    };
    constexpr Case cases[] = {
        {10, 0.5f, 5},
        {5, 0.5f, 2},
        {10, 0.0f, 0},
        {10, 0.7f, 7}, // 0.7f is less than 0.7, and in 64 bits so is the product than 7
        {16777217, 1.0f, 16777216},
        {3000000000, 0.5f, 1500000000}, // no negative number before it is scaled
        {3000000000, 1.0f, 3000000000},
        {4294967040, 1.0f, 4294967040}, // the greatest that fits as a float
        {MOST, 1.0f, MOST},
        {MOST, 2.0f, MOST},
        {1, INFINITE, MOST},
        {1, -0.5f, 0},
        {MOST, -1.0f, 0},
        {1, -INFINITE, 0},
        {0, INFINITE, 0},
    };
    for (const Amount& amount : AMOUNTS)
    {
        for (const auto& [value, intensity, shown] : cases)
        {
            const auto record = Record(amount, value, intensity);
            EXPECT_EQ((record.*amount.get)(), shown) << amount.key << ' ' << value << " at " << intensity;
        }
        EXPECT_EQ((Record(amount, MOST, std::nanf("")).*amount.get)(), 0u) << amount.key;
    }
}

TEST(RetroArtefacts, EveryReaderSeesTheProduct)
{
    for (const Amount& amount : AMOUNTS)
    {
        RetroArtefactsSettings effect(Record(amount, 10, 0.5f));
        EXPECT_EQ(StoredForm(effect), Map({{amount.key, 5}, {"intensity", 0.5}}));
        EXPECT_EQ(effect.GetPropertyAccess()->GetProperty(amount.key), Ombrel::PropertyTree(5)) << amount.key;

        effect.Deserialize(StoredForm(effect));
        EXPECT_EQ(StoredForm(effect), Map({{amount.key, 2}, {"intensity", 0.5}}));
    }
}

TEST(RetroArtefacts, AmountsComeBackAtFullIntensity)
{
    RetroArtefactsSettings effect;
    effect.GetTypedSettings().SetGrain(3);
    effect.GetTypedSettings().SetScratches(70000);
    effect.GetTypedSettings().SetRollerTrack(MOST);
    EXPECT_EQ(StoredForm(effect), Map({{"grain", 3}, {"scratches", 70000}, {"rollerTrack", 4294967295}}));
    EXPECT_TRUE(Restored<RetroArtefactsSettings>(StoredForm(effect)) == effect);
}

TEST(RetroArtefacts, AllShowZeroAtIntensityZero)
{
    const auto effect = Restored<RetroArtefactsSettings>(
        Map({{"shake", true}, {"grain", 3}, {"scratches", 4}, {"rollerTrack", 5}, {"intensity", 0.0}}));
    EXPECT_EQ(StoredForm(effect), Map({{"shake", true}, {"intensity", 0.0}}));
    for (const Amount& amount : AMOUNTS)
    {
        EXPECT_EQ((effect.GetTypedSettings().*amount.get)(), 0u) << amount.key;
    }
}

TEST(RetroArtefacts, SettingAnAmountStoresItUnscaled)
{
    for (const Amount& amount : AMOUNTS)
    {
        RetroArtefactsSettings effect(Record(amount, 0, 0.5f));
        effect.GetPropertyAccess()->SetProperty(amount.key, 9);
        EXPECT_TRUE(effect.GetTypedSettings() == Record(amount, 9, 0.5f)) << amount.key;
        EXPECT_EQ((effect.GetTypedSettings().*amount.get)(), 4u) << amount.key;
    }
}

TEST(RetroArtefacts, AnEmptyTreeRestoresTheDefaultFromAnyState)
{
    for (const Amount& amount : AMOUNTS)
    {
        RetroArtefactsSettings effect(Record(amount, 9, 0.0f));
        effect.Deserialize(Map({}));
        EXPECT_TRUE(effect == RetroArtefactsSettings()) << amount.key;
    }
}

TEST(RetroArtefacts, ComparesTheAmountsEvenWhereTheyShowNothing)
{
    for (const Amount& amount : AMOUNTS)
    {
        EXPECT_FALSE(Record(amount, 3, 0.0f) == Record(amount, 4, 0.0f)) << amount.key;
        EXPECT_TRUE(Record(amount, 3, 0.0f) == Record(amount, 3, 0.0f)) << amount.key;
        EXPECT_FALSE(Record(amount, 3, 0.0f) == Record(amount, 3, 0.5f)) << amount.key;
    }
}

TEST(RetroArtefacts, OnlyTheRecordIsEmptyAndOnlyAsByDefault)
{
    EXPECT_TRUE(RetroArtefactsSettings().GetTypedSettings().IsEmpty());
    EXPECT_FALSE(RetroArtefactsSettings().IsEmpty());
    for (const char* key : {"shake", "vignetting"})
    {
        EXPECT_FALSE(Restored<RetroArtefactsSettings>(Map({{key, true}})).GetTypedSettings().IsEmpty()) << key;
    }
    for (const Amount& amount : AMOUNTS)
    {
        EXPECT_FALSE(Record(amount, 3, 1.0f).IsEmpty()) << amount.key;
        EXPECT_FALSE(Record(amount, 3, 0.0f).IsEmpty()) << amount.key;
    }
}

} // namespace
