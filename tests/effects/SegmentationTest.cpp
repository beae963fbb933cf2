#include "Proc/EffectSettings/SegmentationSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::SegmentationSettings;
using Ombrel::Proc::RgbaColor;
using Support::Map;
using Support::StoredForm;
using Algorithm = Ombrel::Proc::SettingsEffectSegmentation::SegmentationAlgorithm;

TEST(Segmentation, AnUnknownAlgorithmIsNotTheDefault)
{
    SegmentationSettings effect;
    effect.Deserialize(Map({{"algorithm", "gridgraph"}}));
    EXPECT_EQ(effect.GetTypedSettings().m_algorithm, Algorithm::Auto);
    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().m_algorithm, Algorithm::GridGraph);
}

TEST(Segmentation, TheDemoColorIsOpaqueGreen)
{
    EXPECT_TRUE((SegmentationSettings().GetTypedSettings().m_demoColor == RgbaColor{0, 255, 0, 255}));
}

TEST(Segmentation, TheDemoMembersAreStoredButNotCompared)
{
    SegmentationSettings effect;
    effect.GetTypedSettings().m_demoMode = true;
    effect.GetTypedSettings().m_demoColor = {255, 0, 0, 255};
    EXPECT_TRUE(effect == SegmentationSettings());
    EXPECT_TRUE(effect.GetEffectSettings().IsEqualTo(SegmentationSettings().GetEffectSettings()));
    EXPECT_EQ(StoredForm(effect), Map({{"demoMode", true}, {"demoColor", "ff0000ff"}}));
}

TEST(Segmentation, TheModelFileIsComparedButNotStored)
{
    SegmentationSettings effect;
    EXPECT_EQ(effect.GetTypedSettings().modelFile, 0);
    effect.GetTypedSettings().modelFile = 4;
    EXPECT_FALSE(effect == SegmentationSettings());
    EXPECT_FALSE(effect.GetEffectSettings().IsEqualTo(SegmentationSettings().GetEffectSettings()));
    EXPECT_EQ(StoredForm(effect), Map({}));

    const auto clone = effect.Clone();
    EXPECT_EQ(dynamic_cast<const SegmentationSettings&>(*clone).GetTypedSettings().modelFile, 4);
    effect.Deserialize(Map({{"modelFile", 5}}));
    EXPECT_EQ(effect.GetTypedSettings().modelFile, 4);
}

} // namespace
