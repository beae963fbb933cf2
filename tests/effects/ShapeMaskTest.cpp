#include "Proc/EffectSettings/ShapeMaskSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <utility>

namespace
{

using namespace Ombrel::PhotoCore;
using Mask = Ombrel::Proc::SettingsEffectShapeMask;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

Mask WithLevels(std::uint8_t foreground, std::uint8_t background)
{
    Mask mask;
    mask.m_foreground = foreground;
    mask.m_background = background;
    return mask;
}

Mask Sized(Mask mask, double width, double height)
{
    mask.m_width = width;
    mask.m_height = height;
    return mask;
}

TEST(ShapeMask, DefaultsDifferFromWhatOtherRecordsBeginWith)
{
    const Mask mask;
    EXPECT_EQ(mask.m_shape, Mask::Shape::Circle);
    EXPECT_EQ(mask.m_thresholdMode, Mask::ThresholdMode::None);
    EXPECT_EQ(mask.m_foreground, 255);
    EXPECT_EQ(mask.m_background, 0);
    EXPECT_EQ(StoredForm(ShapeMaskSettings()), Map({}));
    EXPECT_TRUE(mask.IsEmpty());
    EXPECT_FALSE(ShapeMaskSettings().IsEmpty());
    EXPECT_FALSE(ShapeMaskSettings().IsAdditive());
}

TEST(ShapeMask, LevelsKeepTheirLowBits)
{
    constexpr std::pair<int, int> cases[] = {{0, 0}, {255, 255}, {256, 0}, {257, 1}, {511, 255}, {-1, 255}};
    for (const auto& [stored, read] : cases)
    {
        const auto effect = Restored<ShapeMaskSettings>(Map({{"foreground", stored}, {"background", stored}}));
        EXPECT_EQ(effect.GetTypedSettings().m_foreground, read) << "foreground " << stored;
        EXPECT_EQ(effect.GetTypedSettings().m_background, read) << "background " << stored;
    }
}

TEST(ShapeMask, TheLevelsStandSideBySide)
{
    const Mask mask;
    EXPECT_EQ(&mask.m_background, &mask.m_foreground + 1);
}

TEST(ShapeMask, AnUnknownNameIsTheFirst)
{
    ShapeMaskSettings effect;
    effect.GetTypedSettings().m_shape = Mask::Shape::Rectangle;
    effect.GetTypedSettings().m_thresholdMode = Mask::ThresholdMode::Background;
    effect.Deserialize(Map({{"shape", "Triangle"}, {"thresholdMode", "none"}}));
    EXPECT_EQ(effect.GetTypedSettings().m_shape, Mask::Shape::Circle);
    EXPECT_EQ(effect.GetTypedSettings().m_thresholdMode, Mask::ThresholdMode::None);
}

TEST(ShapeMask, AnyValueMakesItNotEmptyAndUnequal)
{
    const auto values = Map({{"shape", "Square"},
                             {"thresholdMode", "Background"},
                             {"x", 0.5},
                             {"y", 0.5},
                             {"width", 0.5},
                             {"height", 0.5},
                             {"threshold", 0.5},
                             {"rotationAngle", 0.5},
                             {"foreground", 0},
                             {"background", 255},
                             {"foregroundTilt", 0.5},
                             {"backgroundTilt", 0.5}});
    EXPECT_EQ(StoredForm(Restored<ShapeMaskSettings>(values)), values);
    for (const auto& [key, value] : values.getMap())
    {
        const auto effect = Restored<ShapeMaskSettings>(Map({{key, value}}));
        EXPECT_FALSE(effect.GetTypedSettings().IsEmpty()) << key;
        EXPECT_FALSE(effect.GetTypedSettings() == Mask()) << key;
        EXPECT_FALSE(effect.IsEmpty()) << key;
    }
}

TEST(ShapeMask, IsForegroundOnlyWhereItsLevelIsZeroEverywhere)
{
    EXPECT_TRUE(Mask().IsForegroundOnly()) << "no shape, and 0 outside it";
    EXPECT_TRUE(WithLevels(0, 0).IsForegroundOnly());
    EXPECT_TRUE(Sized(WithLevels(0, 0), 0.5, 0.5).IsForegroundOnly());

    EXPECT_FALSE(WithLevels(0, 255).IsForegroundOnly()) << "the levels that a vignette begins with";
    EXPECT_FALSE(WithLevels(255, 255).IsForegroundOnly()) << "covers everything";
    EXPECT_FALSE(WithLevels(0, 1).IsForegroundOnly());
}

TEST(ShapeMask, AShapeWithALevelIsSeen)
{
    EXPECT_FALSE(Sized(WithLevels(255, 0), 0.5, 0.5).IsForegroundOnly());
    EXPECT_FALSE(Sized(WithLevels(1, 0), 0.5, 0.0).IsForegroundOnly()) << "a circle may go by its width alone";
    EXPECT_FALSE(Sized(WithLevels(1, 0), 0.0, -0.5).IsForegroundOnly());
    EXPECT_FALSE(Sized(WithLevels(1, 0), std::nan(""), 0.0).IsForegroundOnly());
}

TEST(ShapeMask, ATiltedLevelIsNotZeroEverywhere)
{
    for (double Mask::*tilt : {&Mask::m_foregroundTilt, &Mask::m_backgroundTilt})
    {
        for (const double value : {0.5, -0.5, std::nan("")})
        {
            Mask mask = WithLevels(0, 0);
            mask.*tilt = value;
            EXPECT_FALSE(mask.IsForegroundOnly()) << value;
        }
    }
}

TEST(ShapeMask, PlaceAngleAndThresholdDoNotMatterWithoutALevel)
{
    Mask mask = Sized(WithLevels(0, 0), 0.5, 0.5);
    mask.m_shape = Mask::Shape::Rectangle;
    mask.m_thresholdMode = Mask::ThresholdMode::Foreground;
    mask.m_threshold = mask.m_x = mask.m_y = mask.m_rotationAngle = 0.5;
    EXPECT_TRUE(mask.IsForegroundOnly());
}

} // namespace
