#include "Proc/EffectSettings/NoiseVideoSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <concepts>

namespace
{

using Ombrel::PhotoCore::NoiseVideoSettings;
using Ombrel::Proc::SettingsEffectNoiseVideo;
using Support::Map;
using Support::StoredForm;

using Method = SettingsEffectNoiseVideo::Method;

static_assert(!std::default_initializable<SettingsEffectNoiseVideo>, "noise is made with a strength and a method");
static_assert(std::default_initializable<NoiseVideoSettings>);

TEST(NoiseVideo, IsMadeWithAStrengthAndAMethod)
{
    const SettingsEffectNoiseVideo record(100, Method::Poisson);
    EXPECT_EQ(record.GetStrength(), 100);
    EXPECT_EQ(record.GetMethod(), Method::Poisson);
    EXPECT_EQ(record.GetSeed(), 0);
    EXPECT_EQ(StoredForm(NoiseVideoSettings(record)), Map({{"method", "Poisson"}, {"strength", 100}}));
}

TEST(NoiseVideo, IsResetToNoNoiseWhateverItWasMadeWith)
{
    NoiseVideoSettings effect{SettingsEffectNoiseVideo(100, Method::Poisson)};
    effect.Deserialize(Map({{"seed", 7}}));
    EXPECT_EQ(effect.GetTypedSettings().GetStrength(), 0);
    EXPECT_EQ(effect.GetTypedSettings().GetMethod(), Method::Gaussian);
    EXPECT_EQ(effect.GetTypedSettings().GetSeed(), 7);
}

} // namespace
