#include "Proc/EffectSettings/BlurSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <concepts>
#include <cstdint>

namespace
{

using Ombrel::PixFmt;
using Ombrel::PropertyTree;
using Ombrel::PhotoCore::BlurSettings;
using Ombrel::Proc::SettingsEffectBlur;
using Support::List;
using Support::Map;
using Support::StoredForm;

using Algorithm = SettingsEffectBlur::Algorithm;
using BlurScaleType = SettingsEffectBlur::BlurScaleType;

static_assert(!std::default_initializable<SettingsEffectBlur>, "a blur is made with an algorithm");
static_assert(std::default_initializable<BlurSettings>);

TEST(Blur, IsMadeWithAnAlgorithm)
{
    const SettingsEffectBlur record(Algorithm::Median);
    EXPECT_EQ(record.GetAlgorithm(), Algorithm::Median);
    EXPECT_EQ(record.GetKernelLength(), 0);
    EXPECT_FALSE(record.IsEmpty());
    EXPECT_EQ(StoredForm(BlurSettings(record)), Map({{"algorithm", "Median"}}));
}

TEST(Blur, IsResetToGaussianWhateverItWasMadeWith)
{
    BlurSettings effect{SettingsEffectBlur(Algorithm::Bilateral)};
    effect.GetTypedSettings().SetDevX(2.0);
    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().GetAlgorithm(), Algorithm::Gaussian);
    EXPECT_TRUE(effect.GetTypedSettings() == SettingsEffectBlur(Algorithm::Gaussian));
}

TEST(Blur, UnknownTextsHaveFallbacksOfTheirOwn)
{
    for (const PropertyTree& unknown : {PropertyTree("nonsense"), PropertyTree("gaussian"), List({}), PropertyTree()})
    {
        BlurSettings effect{SettingsEffectBlur(Algorithm::Median)};
        effect.Deserialize(Map({{"algorithm", unknown}, {"scaleType", unknown}, {"pixelFormat", unknown}}));
        EXPECT_EQ(effect.GetTypedSettings().GetAlgorithm(), Algorithm::Gaussian) << testing::PrintToString(unknown);
        EXPECT_EQ(effect.GetTypedSettings().GetScaleType(), BlurScaleType::Absolute) << testing::PrintToString(unknown);
        EXPECT_EQ(effect.GetTypedSettings().GetPixelFormat(), PixFmt::None) << testing::PrintToString(unknown);
    }
}

TEST(Blur, ValueWithoutANameIsWrittenAsNothing)
{
    BlurSettings effect;
    effect.GetTypedSettings().SetAlgorithm(Algorithm{7});
    effect.GetTypedSettings().SetPixelFormat(PixFmt{1});
    const PropertyTree stored = StoredForm(effect);
    EXPECT_EQ(stored, Map({{"algorithm", ""}, {"pixelFormat", ""}}));

    effect.Deserialize(stored);
    EXPECT_EQ(effect.GetTypedSettings().GetAlgorithm(), Algorithm::Gaussian);
    EXPECT_EQ(effect.GetTypedSettings().GetPixelFormat(), PixFmt::None);
}

TEST(Blur, ReadsEachKeyIntoItsOwnValue)
{
    BlurSettings effect;
    effect.Deserialize(Map({{"kernelLength", std::int64_t{4294967301}},
                            {"iterations", 3},
                            {"planesMask", 6},
                            {"devX", 1.5},
                            {"devY", 2.5},
                            {"scaleX", 3.5},
                            {"scaleY", 4.5}}));
    const SettingsEffectBlur& record = effect.GetTypedSettings();
    EXPECT_EQ(record.GetKernelLength(), 5); // cut to 32 bits
    EXPECT_EQ(record.GetIterations(), 3);
    EXPECT_EQ(record.GetPlanesMask(), 6);
    EXPECT_EQ(record.GetDevX(), 1.5);
    EXPECT_EQ(record.GetDevY(), 2.5);
    EXPECT_EQ(record.GetScaleX(), 3.5);
    EXPECT_EQ(record.GetScaleY(), 4.5);
}

} // namespace
