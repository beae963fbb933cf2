#include "Proc/EffectSettings/PosterizeSettings.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::PosterizeSettings;
using Ombrel::Proc::SettingsEffectPosterize;
using Support::Map;

TEST(Posterize, StoresWhatItIsGiven)
{
    PosterizeSettings effect;
    effect.Deserialize(Map({{"isPal", true}, {"seed", -5}, {"colors", -3}, {"intensity", 2.5}}));
    const SettingsEffectPosterize& record = effect.GetTypedSettings();
    EXPECT_TRUE(record.GetIsPal());
    EXPECT_EQ(record.GetSeed(), -5);
    EXPECT_EQ(record.GetColorsNumber(), -3);
    EXPECT_EQ(record.GetIntensity(), 2.5f);
}

TEST(Posterize, NarrowsItsIntensity)
{
    PosterizeSettings effect;
    const auto access = effect.GetPropertyAccess();
    access->SetProperty("intensity", 0.1);
    EXPECT_EQ(effect.GetTypedSettings().GetIntensity(), 0.1f);
    EXPECT_EQ(access->GetProperty("intensity"), static_cast<double>(0.1f));
}

} // namespace
