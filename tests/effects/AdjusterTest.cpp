#include "Proc/EffectSettings/AdjusterSettings.h"

#include "Proc/EffectSettings/ColorBalanceAutoSettings.h"
#include "Proc/EffectSettings/ColorBalanceSettings.h"
#include "Proc/EffectSettings/DetailsEnhanceSettings.h"
#include "Proc/EffectSettings/SmartBlurSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(Adjuster, IsNeverEmptyHoweverNeutral)
{
    EXPECT_EQ(StoredForm(AdjusterSettings()), Map({}));
    EXPECT_FALSE(AdjusterSettings().IsEmpty());
    EXPECT_TRUE(VibranceSettings().IsEmpty());
}

TEST(Adjuster, IntensitiesAreOneUnlessSet)
{
    AdjusterSettings effect;
    auto& record = effect.GetTypedSettings();
    for (double* intensity : {&record.m_colorizeIntensity, &record.m_temperatureIntensity, &record.m_hueIntensity,
                              &record.m_highlightsIntensity, &record.m_shadowsIntensity})
    {
        EXPECT_EQ(*intensity, 1.0);
        *intensity = 0.0;
    }
    EXPECT_EQ(StoredForm(effect), Map({{"colorizeIntensity", 0.0},
                                       {"temperatureIntensity", 0.0},
                                       {"hueIntensity", 0.0},
                                       {"highlightsIntensity", 0.0},
                                       {"shadowsIntensity", 0.0}}));
}

TEST(Adjuster, AMissingColorBalanceIsReset)
{
    AdjusterSettings effect;
    effect.GetTypedSettings().m_colorBalance.SetGammaRed(5);
    effect.Deserialize(Map({}));
    EXPECT_TRUE(effect.GetTypedSettings().m_colorBalance.IsEmpty());
}

TEST(Adjuster, TheNestedHueIsNormalised)
{
    constexpr std::pair<int, int> cases[] = {{900, -180}, {180, 180}, {-180, -180}, {181, -179}};
    for (const auto& [stored, read] : cases)
    {
        AdjusterSettings effect;
        effect.Deserialize(Map({{"colorBalance", Map({{"hue", stored}})}}));
        EXPECT_EQ(effect.GetTypedSettings().m_colorBalance.GetHue(), read) << stored;
    }
}

TEST(Adjuster, ASmartBlurWithOneKeyTakesTheStandAloneDefaults)
{
    AdjusterSettings effect;
    effect.Deserialize(Map({{"smartBlur", Map({{"lumaBlur", 7}})}}));
    const auto& blur = effect.GetTypedSettings().m_smartBlur;
    EXPECT_EQ(blur.GetLumaBlur(), 7);
    EXPECT_EQ(blur.GetLumaRadius(), 0);
    EXPECT_EQ(blur.GetChromaRadius(), 0);
    EXPECT_EQ(StoredForm(effect), Map({{"smartBlur", Map({{"lumaBlur", 7}})}}));
}

TEST(Adjuster, AnEmptySmartBlurIsNotAMissingOne)
{
    AdjusterSettings effect;
    effect.Deserialize(Map({{"smartBlur", Map({})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_smartBlur.GetLumaRadius(), 0);
    EXPECT_EQ(StoredForm(effect), Map({{"smartBlur", Map({})}}));

    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().m_smartBlur.GetLumaRadius(), 100);
    EXPECT_EQ(effect.GetTypedSettings().m_smartBlur.GetChromaRadius(), 100);
}

TEST(Adjuster, EverySmartBlurComesBack)
{
    for (const int luma : {0, 1, 99, 100})
    {
        for (const int chroma : {0, 100})
        {
            AdjusterSettings effect;
            effect.GetTypedSettings().m_smartBlur.SetLumaRadius(luma);
            effect.GetTypedSettings().m_smartBlur.SetChromaRadius(chroma);
            AdjusterSettings restored;
            restored.Deserialize(StoredForm(effect));
            EXPECT_TRUE(restored == effect) << luma << ", " << chroma;
        }
    }
}

TEST(Adjuster, ANestedMapHoldsOnlyWhatDiffers)
{
    AdjusterSettings effect;
    effect.GetTypedSettings().m_colorBalanceAuto.m_exposure = 3;
    EXPECT_EQ(StoredForm(effect), Map({{"colorBalanceAuto", Map({{"exposure", 3}})}}));
}

TEST(Adjuster, ANestedRecordMustBeAMap)
{
    for (const PropertyTree& tree : {PropertyTree(), PropertyTree(5), List({})})
    {
        AdjusterSettings effect;
        effect.GetTypedSettings().m_vibrance.m_strength = 3;
        EXPECT_THROW(effect.Deserialize(Map({{"vibrance", tree}})), std::invalid_argument);
        EXPECT_EQ(effect.GetTypedSettings().m_vibrance.m_strength, 3);
    }
}

TEST(Adjuster, PropertyAccessLeavesTheRestOfANestedRecord)
{
    AdjusterSettings effect;
    const auto access = effect.GetPropertyAccess();
    access->SetProperty("smartBlur", Map({{"lumaBlur", 7}}));
    EXPECT_EQ(effect.GetTypedSettings().m_smartBlur.GetLumaRadius(), 100);
    EXPECT_EQ(effect.GetTypedSettings().m_smartBlur.GetLumaBlur(), 7);
}

template <class Class> void ExpectForwardsIsEmpty(const char* key, const PropertyTree& value)
{
    Class effect;
    EXPECT_TRUE(effect.IsEmpty());
    effect.GetPropertyAccess()->SetProperty(key, value);
    EXPECT_FALSE(effect.IsEmpty()) << key;
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty()) << key;
    EXPECT_FALSE(effect.IsAdditive());
}

TEST(Adjuster, ItsPartsSayThemselvesWhetherTheyAreEmpty)
{
    ExpectForwardsIsEmpty<ColorBalanceAutoSettings>("whiteBalance", true);
    ExpectForwardsIsEmpty<ColorBalanceAutoSettings>("lightBalance", true);
    ExpectForwardsIsEmpty<ColorBalanceAutoSettings>("exposure", -1);
    ExpectForwardsIsEmpty<VibranceSettings>("strength", 1);
    ExpectForwardsIsEmpty<DetailsEnhanceSettings>("strength", 1);
    ExpectForwardsIsEmpty<ColorBalanceSettings>("hue", 180);
    ExpectForwardsIsEmpty<SmartBlurSettings>("chromaThreshold", 1);
}

TEST(Adjuster, KeysOfTheColorBalanceReachItsAccessors)
{
    const auto effect = Restored<ColorBalanceSettings>(Map({{"brightness", 1},
                                                            {"contrast", 2},
                                                            {"saturation", 3},
                                                            {"hue", 544},
                                                            {"gamma", 5},
                                                            {"gammaRed", 6},
                                                            {"gammaGreen", 7},
                                                            {"gammaBlue", 8},
                                                            {"gammaWeight", 9}}));
    const auto& record = effect.GetTypedSettings();
    EXPECT_EQ(record.GetBrightness(), 1);
    EXPECT_EQ(record.GetContrast(), 2);
    EXPECT_EQ(record.GetSaturation(), 3);
    EXPECT_EQ(record.GetHue(), -176);
    EXPECT_EQ(record.GetGamma(), 5);
    EXPECT_EQ(record.GetGammaRed(), 6);
    EXPECT_EQ(record.GetGammaGreen(), 7);
    EXPECT_EQ(record.GetGammaBlue(), 8);
    EXPECT_EQ(record.GetGammaWeight(), 9);
}

TEST(Adjuster, KeysOfTheSmartBlurReachItsAccessors)
{
    const auto effect = Restored<SmartBlurSettings>(Map({{"lumaRadius", 1},
                                                         {"lumaBlur", 2},
                                                         {"lumaSharpen", 3},
                                                         {"lumaThreshold", 4},
                                                         {"chromaRadius", 5},
                                                         {"chromaBlur", 6},
                                                         {"chromaSharpen", 7},
                                                         {"chromaThreshold", 8}}));
    const auto& record = effect.GetTypedSettings();
    EXPECT_EQ(record.GetLumaRadius(), 1);
    EXPECT_EQ(record.GetLumaBlur(), 2);
    EXPECT_EQ(record.GetLumaSharpen(), 3);
    EXPECT_EQ(record.GetLumaThreshold(), 4);
    EXPECT_EQ(record.GetChromaRadius(), 5);
    EXPECT_EQ(record.GetChromaBlur(), 6);
    EXPECT_EQ(record.GetChromaSharpen(), 7);
    EXPECT_EQ(record.GetChromaThreshold(), 8);
}

TEST(Adjuster, LikeRecordsAreDifferentTypes)
{
    EXPECT_FALSE(VibranceSettings() == DetailsEnhanceSettings());
    EXPECT_THROW(VibranceSettings().SetEffectSettings(DetailsEnhanceSettings().GetEffectSettings()), std::bad_cast);
}

} // namespace
