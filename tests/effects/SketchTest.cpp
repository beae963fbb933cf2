#include "Proc/EffectSettings/SketchSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::SketchSettings;
using Ombrel::Proc::RgbaColor;
using Ombrel::Proc::SettingsEffectBlurRadial;
using Ombrel::Proc::SettingsEffectCompose;
using Ombrel::Proc::SettingsEffectNoiseVideo;
using Ombrel::Proc::SettingsEffectSketch;
using Support::List;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

using BlurMode = SettingsEffectBlurRadial::BlurRadialMode;
using Method = SettingsEffectNoiseVideo::Method;
using Operator = SettingsEffectCompose::CompositeOperator;

void ExpectTuned(const SettingsEffectSketch& record)
{
    EXPECT_EQ(record.m_color, (RgbaColor{0, 0, 0, 255}));
    EXPECT_EQ(record.m_noise.GetMethod(), Method{0});
    EXPECT_EQ(record.m_noise.GetSeed(), 0);
    EXPECT_EQ(record.m_noise.GetStrength(), 100);
    EXPECT_EQ(record.m_motion.m_mode, BlurMode{1});
    EXPECT_EQ(record.m_motion.m_strength, 0.1);
    EXPECT_EQ(record.m_motion.m_angle, 135.0);
    EXPECT_EQ(record.m_motion.m_x, 0.0);
    EXPECT_EQ(record.m_motion.m_y, 0.0);
    EXPECT_TRUE(record.m_motion.m_trace.empty());
    EXPECT_EQ(record.m_charcoal.m_radius, 3);
    EXPECT_EQ(record.m_charcoal.m_sigma, 3.0);
    EXPECT_EQ(record.m_compose.m_operator, Operator{8});
}

TEST(Sketch, StartsWithItsPartsTuned)
{
    ExpectTuned(SettingsEffectSketch());
    EXPECT_EQ(StoredForm(SketchSettings()), Map({}));
    EXPECT_FALSE(SketchSettings().IsEmpty());
    EXPECT_FALSE(SketchSettings().GetTypedSettings().IsEmpty());
}

TEST(Sketch, MissingPartsAreTunedAgain)
{
    SketchSettings effect;
    SettingsEffectSketch& record = effect.GetTypedSettings();
    record.m_noise.SetSeed(5);
    record.m_motion.m_trace = {{1, 2}};
    record.m_charcoal.m_radius = 0;
    record.m_compose.m_operator = Operator::NoCompositeOp;
    effect.Deserialize(Map({{"color", "ff0000ff"}}));
    EXPECT_EQ(record.m_color, (RgbaColor{255, 0, 0, 255}));
    effect.Deserialize(Map({}));
    ExpectTuned(record);
}

TEST(Sketch, AnEmptyPartIsNotAMissingOne)
{
    const auto effect =
        Restored<SketchSettings>(Map({{"noise", Map({})}, {"motion", Map({})}, {"charcoal", Map({})}, {"compose", Map({})}}));
    const SettingsEffectSketch& record = effect.GetTypedSettings();
    EXPECT_EQ(record.m_noise.GetStrength(), 0);
    EXPECT_EQ(record.m_motion.m_mode, BlurMode::Radial);
    EXPECT_EQ(record.m_motion.m_strength, 0.0);
    EXPECT_EQ(record.m_motion.m_angle, 0.0);
    EXPECT_EQ(record.m_charcoal.m_radius, 0);
    EXPECT_EQ(record.m_charcoal.m_sigma, 0.5);
    EXPECT_EQ(record.m_compose.m_operator, Operator::UndefinedCompositeOp);
    EXPECT_EQ(StoredForm(effect), Map({{"noise", Map({})}, {"motion", Map({})}, {"charcoal", Map({})}, {"compose", Map({})}}));
}

TEST(Sketch, AChangedPartIsStoredAgainstItsOwnDefaults)
{
    SketchSettings effect;
    effect.GetTypedSettings().m_charcoal.m_sigma = 0.5;
    EXPECT_EQ(StoredForm(effect), Map({{"charcoal", Map({{"radius", 3}})}}));
    EXPECT_TRUE(Restored<SketchSettings>(StoredForm(effect)) == effect);

    SketchSettings moved;
    moved.GetTypedSettings().m_motion.m_x = 0.5;
    EXPECT_EQ(StoredForm(moved), Map({{"motion", Map({{"mode", "Linear"}, {"x", 0.5}, {"strength", 0.1}, {"angle", 135.0}})}}));
    EXPECT_TRUE(Restored<SketchSettings>(StoredForm(moved)) == moved);
}

TEST(Sketch, ThePartsAreReadAsTheyAreAlone)
{
    const auto effect = Restored<SketchSettings>(Map({
        {"noise", Map({{"method", "Poisson"}, {"seed", 7}})},
        {"motion", Map({{"mode", "Custom"}, {"trace", List({Map({{"y", 5}})})}})},
        {"compose", Map({{"operator", "HardMixCompositeOp"}})},
    }));
    const SettingsEffectSketch& record = effect.GetTypedSettings();
    EXPECT_EQ(record.m_noise.GetMethod(), Method::Poisson);
    EXPECT_EQ(record.m_noise.GetSeed(), 7);
    EXPECT_EQ(record.m_motion.m_mode, BlurMode::Custom);
    ASSERT_EQ(record.m_motion.m_trace.size(), 1u);
    EXPECT_EQ(record.m_motion.m_trace[0], (SettingsEffectBlurRadial::TracePoint{0, 5}));
    EXPECT_EQ(static_cast<int>(record.m_compose.m_operator), 67);
}

TEST(Sketch, AnUnknownNameInAPartIsZero)
{
    const auto effect = Restored<SketchSettings>(Map({
        {"noise", Map({{"method", "nonsense"}})},
        {"motion", Map({{"mode", "nonsense"}})},
        {"compose", Map({{"operator", "nonsense"}})},
    }));
    EXPECT_EQ(effect.GetTypedSettings().m_noise.GetMethod(), Method::Gaussian);
    EXPECT_EQ(effect.GetTypedSettings().m_motion.m_mode, BlurMode::Radial);
    EXPECT_EQ(effect.GetTypedSettings().m_compose.m_operator, Operator::NoCompositeOp);
    EXPECT_EQ(effect.GetPropertyAccess()->GetProperty("compose"), Map({{"operator", "NoCompositeOp"}}));
}

TEST(Sketch, AnUndefinedOperatorComesBack)
{
    const auto effect = Restored<SketchSettings>(Map({{"compose", Map({{"operator", "UndefinedCompositeOp"}})}}));
    EXPECT_EQ(static_cast<int>(effect.GetTypedSettings().m_compose.m_operator), -1);
    EXPECT_TRUE(Restored<SketchSettings>(StoredForm(effect)) == effect);
}

TEST(Sketch, PropertyAccessLeavesTheRestOfAPart)
{
    SketchSettings effect;
    effect.GetPropertyAccess()->SetProperty("charcoal", Map({{"radius", 7}}));
    EXPECT_EQ(effect.GetTypedSettings().m_charcoal.m_radius, 7);
    EXPECT_EQ(effect.GetTypedSettings().m_charcoal.m_sigma, 3.0);
}

TEST(Sketch, APartMustBeAMap)
{
    for (const char* key : {"noise", "motion", "charcoal", "compose"})
    {
        for (const PropertyTree& tree : {PropertyTree(), PropertyTree(5), List({})})
        {
            SketchSettings effect;
            EXPECT_THROW(effect.Deserialize(Map({{key, tree}})), std::invalid_argument) << key;
            ExpectTuned(effect.GetTypedSettings());
        }
    }
}

TEST(Sketch, ComparesEveryPartExactly)
{
    SketchSettings seeded;
    seeded.GetTypedSettings().m_noise.SetSeed(1);
    EXPECT_FALSE(seeded == SketchSettings());
    SketchSettings traced;
    traced.GetTypedSettings().m_motion.m_trace = {{0, 0}};
    EXPECT_FALSE(traced == SketchSettings());
    SketchSettings composed;
    composed.GetTypedSettings().m_compose.m_operator = Operator::NoCompositeOp;
    EXPECT_FALSE(composed == SketchSettings());
    SketchSettings strange;
    strange.GetTypedSettings().m_charcoal.m_sigma = std::nan("");
    EXPECT_FALSE(strange == SketchSettings(strange));
}

} // namespace
