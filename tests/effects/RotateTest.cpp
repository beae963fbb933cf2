#include "Proc/EffectSettings/RotateSettings.h"

#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::RgbaColor;
using Ombrel::Proc::SettingsEffectRotate;
using Support::Map;

RotateSettings Rotate(double angle)
{
    SettingsEffectRotate record;
    record.SetAngle(angle);
    return RotateSettings(record);
}

TEST(Rotate, TwoRotationsAreNotMerged)
{
    RotateSettings effect = Rotate(12.5);
    EXPECT_FALSE(effect.IsAdditive());
    effect.Add(Rotate(30.0));
    EXPECT_EQ(effect.GetTypedSettings().GetAngle(), 12.5);
    static_cast<IEffectSettings&>(effect).Add(Rotate(30.0));
    EXPECT_EQ(effect.GetTypedSettings().GetAngle(), 12.5);
}

TEST(Rotate, TheSizeModeIsReadBeforeTheAngle)
{
    RotateSettings effect = Rotate(12.5);
    EXPECT_THROW(effect.Deserialize(Map({{"angle", "much"}, {"outputSizeMode", "enOutputSizePad"}})), std::invalid_argument);
    EXPECT_EQ(effect.GetTypedSettings().GetOutputSizeMode(), SettingsEffectRotate::OutputSizeMode::enOutputSizePad);
    EXPECT_EQ(effect.GetTypedSettings().GetAngle(), 12.5);
}

TEST(Rotate, TheColourIsReadRedFirst)
{
    RotateSettings effect;
    effect.Deserialize(Map({{"color", "FF804020"}}));
    EXPECT_EQ(effect.GetTypedSettings().GetColor(), (RgbaColor{255, 128, 64, 32}));
    EXPECT_THROW(effect.Deserialize(Map({{"color", "green"}})), std::invalid_argument);
    EXPECT_THROW(effect.Deserialize(Map({{"color", "1ff0000ff"}})), std::out_of_range);
}

} // namespace
