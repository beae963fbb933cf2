#include "Proc/EffectSettings/DeepAdjusterSettings.h"
#include "Proc/EffectSettings/DeepAlignerSettings.h"
#include "Proc/EffectSettings/DeepAutoRetoucherSettings.h"
#include "Proc/EffectSettings/DeepColorizerSettings.h"
#include "Proc/EffectSettings/DeepDenoiserSettings.h"
#include "Proc/EffectSettings/DeepEnhancerSettings.h"
#include "Proc/EffectSettings/DeepLumaUpscalerSettings.h"
#include "Proc/EffectSettings/DeepRestorerSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::Proc::Face;
using Ombrel::Proc::SettingsEffectDeepAutoRetoucher;
using Ombrel::Proc::SettingsEffectDeepNeuralProcessor;
using Support::Map;
using Support::StoredForm;

TEST(DeepAdjuster, KnowsTheStoredSpellingOfHightlightsAlone)
{
    DeepAdjusterSettings effect;
    effect.Deserialize(Map({{"highlights", 30}}));
    EXPECT_EQ(effect.GetTypedSettings().m_hightlights, 0);
    EXPECT_EQ(StoredForm(effect), Map({}));

    effect.Deserialize(Map({{"hightlights", 30}}));
    EXPECT_EQ(effect.GetTypedSettings().m_hightlights, 30);
}

TEST(DeepAdjuster, ItsControlsAreStoredButNotCompared)
{
    DeepAdjusterSettings a;
    DeepAdjusterSettings b;
    a.GetTypedSettings().m_brightness = 10;
    b.GetTypedSettings().m_brightness = 20;
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.GetEffectSettings().IsEqualTo(b.GetEffectSettings()));
    EXPECT_EQ(StoredForm(a), Map({{"brightness", 10}}));
    EXPECT_EQ(StoredForm(b), Map({{"brightness", 20}}));
}

TEST(DeepAdjuster, CutsItsNumbersTo32Bits)
{
    DeepAdjusterSettings effect;
    effect.Deserialize(Map({{"shadows", std::int64_t{4294967301}}, {"contrast", -12.9}}));
    EXPECT_EQ(effect.GetTypedSettings().m_shadows, 5);
    EXPECT_EQ(effect.GetTypedSettings().m_contrast, -12);
}

TEST(DeepAligner, ItsValuesAreStoredButNotCompared)
{
    DeepAlignerSettings a;
    a.GetTypedSettings().m_angle = 2.5;
    a.GetTypedSettings().m_horizonDetected = true;
    EXPECT_TRUE(a == DeepAlignerSettings());
    EXPECT_EQ(StoredForm(a), Map({{"angle", 2.5}, {"horizonDetected", true}}));
}

TEST(DeepColorizer, TheModeIsOneByDefault)
{
    EXPECT_EQ(DeepColorizerSettings().GetTypedSettings().neuralMode, 1);
    EXPECT_EQ(DeepRestorerSettings().GetTypedSettings().neuralMode, 0);
}

TEST(DeepColorizer, OptionsAreComparedButNotStored)
{
    DeepColorizerSettings a;
    DeepColorizerSettings b;
    b.GetTypedSettings().neuralOption4 = true;
    EXPECT_FALSE(a == b);
    EXPECT_EQ(StoredForm(a), StoredForm(b));
}

template <class Class> class DeepProcessorTest : public testing::Test
{
};

using Processors = testing::Types<DeepDenoiserSettings, DeepEnhancerSettings, DeepLumaUpscalerSettings>;
TYPED_TEST_SUITE(DeepProcessorTest, Processors);

void SetProcessor(SettingsEffectDeepNeuralProcessor& record)
{
    record.processorMode = 1;
    record.processorIndex = 2;
    record.processorLimitFirst = 640;
    record.processorLimitSecond = 480;
}

void ExpectProcessorIsSet(const SettingsEffectDeepNeuralProcessor& record)
{
    EXPECT_EQ(record.processorMode, 1);
    EXPECT_EQ(record.processorIndex, 2);
    EXPECT_EQ(record.processorLimitFirst, 640);
    EXPECT_EQ(record.processorLimitSecond, 480);
}

TYPED_TEST(DeepProcessorTest, StartsWithTheDefaultsOfTheProcessor)
{
    const TypeParam effect;
    EXPECT_EQ(effect.GetTypedSettings().processorMode, 3);
    EXPECT_EQ(effect.GetTypedSettings().processorIndex, -1);
    EXPECT_EQ(effect.GetTypedSettings().processorLimitFirst, 3072);
    EXPECT_EQ(effect.GetTypedSettings().processorLimitSecond, 3072);
}

TYPED_TEST(DeepProcessorTest, TheProcessorIsCopiedAndNeitherStoredNorCompared)
{
    TypeParam effect;
    SetProcessor(effect.GetTypedSettings());
    EXPECT_TRUE(effect == TypeParam());
    EXPECT_TRUE(effect.GetEffectSettings().IsEqualTo(TypeParam().GetEffectSettings()));
    EXPECT_EQ(StoredForm(effect), Map({}));

    const auto clone = effect.Clone();
    ExpectProcessorIsSet(dynamic_cast<const TypeParam&>(*clone).GetTypedSettings());
    effect.Deserialize(Map({{"processorMode", 5}}));
    ExpectProcessorIsSet(effect.GetTypedSettings());
}

SettingsEffectDeepAutoRetoucher WithTwoFaces()
{
    SettingsEffectDeepAutoRetoucher record;
    record.faces.resize(2);
    record.faces[1].m_outline.m_contour = {{3, 4}};
    return record;
}

TEST(DeepAutoRetoucher, HasNoFacesByDefault)
{
    EXPECT_TRUE(DeepAutoRetoucherSettings().GetTypedSettings().faces.empty());
}

TEST(DeepAutoRetoucher, CopiesItsFacesOneByOne)
{
    const SettingsEffectDeepAutoRetoucher source = WithTwoFaces();
    DeepAutoRetoucherSettings effect(source);
    const auto clone = effect.Clone();
    effect.GetTypedSettings().faces.clear();

    const auto& faces = dynamic_cast<const DeepAutoRetoucherSettings&>(*clone).GetTypedSettings().faces;
    ASSERT_EQ(faces.size(), 2u);
    EXPECT_TRUE(faces[0] == source.faces[0]);
    EXPECT_TRUE(faces[1] == source.faces[1]);
    EXPECT_EQ(faces[1].m_outline.m_contour[0].m_y, 4);

    effect.SetEffectSettings(clone->GetEffectSettings());
    EXPECT_EQ(effect.GetTypedSettings().faces.size(), 2u);
}

TEST(DeepAutoRetoucher, ItsFacesAreNeitherStoredNorCompared)
{
    DeepAutoRetoucherSettings effect(WithTwoFaces());
    EXPECT_TRUE(effect == DeepAutoRetoucherSettings());
    EXPECT_TRUE(effect.GetEffectSettings().IsEqualTo(SettingsEffectDeepAutoRetoucher()));
    EXPECT_EQ(StoredForm(effect), Map({}));

    effect.Deserialize(Map({{"faces", 5}}));
    EXPECT_EQ(effect.GetTypedSettings().faces.size(), 2u);
}

} // namespace
