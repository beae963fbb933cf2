#include "Proc/EffectSettings/DirectionalAreaDeformationSettings.h"
#include "Proc/EffectSettings/ImplodeSettings.h"
#include "Proc/EffectSettings/PixelateSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Support::Map;
using Support::StoredForm;
using ScaleMethod = Ombrel::Proc::SettingsEffectPixelate::ScaleMethod;
using ImplodeMode = Ombrel::Proc::SettingsEffectImplode::ImplodeMode;

template <class Settings> Settings WithStrength(double strength)
{
    Settings effect;
    effect.GetTypedSettings().m_strength = strength;
    return effect;
}

TEST(Pixelate, AnEmptyTreeRestoresItsTwoMethods)
{
    PixelateSettings effect;
    EXPECT_EQ(StoredForm(effect), Map({}));
    effect.GetTypedSettings().m_methodDownscale = ScaleMethod::enSinc;
    effect.GetTypedSettings().m_methodUpscale = ScaleMethod::enArea;
    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().m_methodDownscale, ScaleMethod::enBilinear);
    EXPECT_EQ(effect.GetTypedSettings().m_methodUpscale, ScaleMethod::enPoint);
}

TEST(Pixelate, AnUnknownMethodIsNotTheDefault)
{
    PixelateSettings effect;
    effect.Deserialize(Map({{"methodDownscale", "enNearest"}}));
    EXPECT_EQ(effect.GetTypedSettings().m_methodDownscale, ScaleMethod::enFastBilinear);
    EXPECT_EQ(StoredForm(effect), Map({{"methodDownscale", "enFastBilinear"}}));
}

TEST(Pixelate, ComparesItsStrengthWithATolerance)
{
    EXPECT_TRUE(WithStrength<PixelateSettings>(2.0) == WithStrength<PixelateSettings>(2.000001));
    EXPECT_TRUE(WithStrength<PixelateSettings>(2.000001) == WithStrength<PixelateSettings>(2.0));
    EXPECT_FALSE(WithStrength<PixelateSettings>(2.0) == WithStrength<PixelateSettings>(2.00002));
    EXPECT_FALSE(WithStrength<PixelateSettings>(2.00002) == WithStrength<PixelateSettings>(2.0));
    EXPECT_FALSE(WithStrength<PixelateSettings>(0.0) == WithStrength<PixelateSettings>(1e-5));
    EXPECT_FALSE(WithStrength<PixelateSettings>(1e-5) == WithStrength<PixelateSettings>(0.0));
}

TEST(Pixelate, AStrengthThatIsNoNumberEqualsNothing)
{
    const PixelateSettings effect = WithStrength<PixelateSettings>(std::nan(""));
    EXPECT_FALSE(effect == effect);
    EXPECT_FALSE(effect == WithStrength<PixelateSettings>(0.0));
    EXPECT_FALSE(effect.GetTypedSettings().IsEmpty());
}

// What is left out is compared exactly.
TEST(Pixelate, AStrengthThatEqualsTheDefaultOnlyNearlyIsWritten)
{
    const PixelateSettings effect = WithStrength<PixelateSettings>(1e-6);
    EXPECT_TRUE(effect == PixelateSettings());
    EXPECT_EQ(StoredForm(effect), Map({{"strength", 1e-6}}));
}

TEST(Pixelate, IsEmptyBelowItsTolerance)
{
    EXPECT_TRUE(WithStrength<PixelateSettings>(-3.0).GetTypedSettings().IsEmpty());
    EXPECT_TRUE(WithStrength<PixelateSettings>(0.99e-5).GetTypedSettings().IsEmpty());
    EXPECT_FALSE(WithStrength<PixelateSettings>(1e-5).GetTypedSettings().IsEmpty());
    EXPECT_FALSE(PixelateSettings().IsEmpty());
}

TEST(Implode, OnlyNoStrengthAtAllIsEmpty)
{
    EXPECT_TRUE(ImplodeSettings().GetTypedSettings().IsEmpty());
    EXPECT_TRUE(WithStrength<ImplodeSettings>(-0.0).GetTypedSettings().IsEmpty());
    EXPECT_FALSE(WithStrength<ImplodeSettings>(-3.0).GetTypedSettings().IsEmpty());
    EXPECT_FALSE(WithStrength<ImplodeSettings>(1e-9).GetTypedSettings().IsEmpty());
    EXPECT_FALSE(ImplodeSettings().IsEmpty());

    ImplodeSettings effect;
    effect.GetTypedSettings().m_mode = ImplodeMode::Expand;
    EXPECT_TRUE(effect.GetTypedSettings().IsEmpty());
}

TEST(Implode, ReadsAndWritesItsModeByName)
{
    ImplodeSettings effect;
    effect.Deserialize(Map({{"mode", "Expand"}}));
    EXPECT_EQ(static_cast<int>(effect.GetTypedSettings().m_mode), 1);
    EXPECT_EQ(StoredForm(effect), Map({{"mode", "Expand"}}));
}

TEST(DirectionalAreaDeformation, IsEmptyWithoutStrengthAndWritesItsPoints)
{
    DirectionalAreaDeformationSettings effect;
    auto& record = effect.GetTypedSettings();
    record.m_fromX = 1;
    record.m_fromY = -2;
    record.m_toX = 3;
    record.m_toY = 4;
    record.m_size = 5;
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
    EXPECT_EQ(StoredForm(effect), Map({{"fromX", 1}, {"fromY", -2}, {"toX", 3}, {"toY", 4}, {"size", 5}}));

    record.m_strength = -0.5;
    EXPECT_FALSE(record.IsEmpty());
}

} // namespace
