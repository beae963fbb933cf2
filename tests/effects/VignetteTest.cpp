#include "Proc/EffectSettings/VignetteSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::VignetteSettings;
using Ombrel::Proc::RgbaColor;
using Ombrel::Proc::SettingsEffectShapeMask;
using Support::List;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(Vignette, BeginsWithLevelsOfItsOwn)
{
    const VignetteSettings effect;
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_foreground, 0);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_background, 255);
    EXPECT_EQ(effect.GetTypedSettings().m_color, (RgbaColor{0, 0, 0, 255}));
    EXPECT_EQ(StoredForm(effect), Map({}));
}

TEST(Vignette, AMissingMaskIsNotAMaskWithoutLevels)
{
    VignetteSettings effect;
    effect.Deserialize(Map({{"alpha", Map({{"x", 0.25}})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_x, 0.25);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_foreground, 255);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_background, 0);
    EXPECT_EQ(StoredForm(effect), Map({{"alpha", Map({{"x", 0.25}})}}));

    effect.Deserialize(Map({{"alpha", Map({})}}));
    EXPECT_TRUE(effect.GetTypedSettings().m_alpha == SettingsEffectShapeMask());
    EXPECT_EQ(StoredForm(effect), Map({{"alpha", Map({})}}));

    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_foreground, 0);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_background, 255);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_x, 0.0);
}

TEST(Vignette, AChangedMaskIsStoredAgainstItsOwnDefaults)
{
    VignetteSettings effect;
    effect.GetTypedSettings().m_alpha.m_width = 0.5;
    EXPECT_EQ(StoredForm(effect), Map({{"alpha", Map({{"width", 0.5}, {"foreground", 0}, {"background", 255}})}}));
    EXPECT_TRUE(Restored<VignetteSettings>(StoredForm(effect)) == effect);

    effect.GetTypedSettings().m_alpha.m_foreground = 255;
    EXPECT_EQ(StoredForm(effect), Map({{"alpha", Map({{"width", 0.5}, {"background", 255}})}}));
    EXPECT_TRUE(Restored<VignetteSettings>(StoredForm(effect)) == effect);
}

TEST(Vignette, OnlyTheRecordIsEmptyAsItsMaskSays)
{
    VignetteSettings effect;
    EXPECT_FALSE(effect.GetTypedSettings().IsEmpty());

    effect.GetTypedSettings().m_alpha.m_background = 0;
    EXPECT_TRUE(effect.GetTypedSettings().m_alpha.IsForegroundOnly());
    EXPECT_TRUE(effect.GetTypedSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());

    effect.GetTypedSettings().m_color = {255, 0, 0, 255};
    EXPECT_TRUE(effect.GetTypedSettings().IsEmpty());
}

TEST(Vignette, PropertyAccessLeavesTheRestOfTheMask)
{
    VignetteSettings effect;
    effect.GetPropertyAccess()->SetProperty("alpha", Map({{"shape", "Ellipse"}}));
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_shape, SettingsEffectShapeMask::Shape::Ellipse);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_foreground, 0);
    EXPECT_EQ(effect.GetTypedSettings().m_alpha.m_background, 255);
}

TEST(Vignette, TheMaskMustBeAMap)
{
    for (const PropertyTree& tree : {PropertyTree(), PropertyTree(0.5), List({})})
    {
        VignetteSettings effect;
        EXPECT_THROW(effect.Deserialize(Map({{"alpha", tree}})), std::invalid_argument);
        EXPECT_TRUE(effect == VignetteSettings());
    }
}

TEST(Vignette, ComparesTheWholeMask)
{
    VignetteSettings effect;
    effect.GetTypedSettings().m_alpha.m_backgroundTilt = 0.5;
    EXPECT_FALSE(effect == VignetteSettings());
    effect.GetTypedSettings().m_alpha.m_backgroundTilt = std::nan("");
    EXPECT_FALSE(effect == VignetteSettings(effect));
}

} // namespace
