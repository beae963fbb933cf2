#include "Proc/EffectSettings/ResizeSettings.h"

#include "Exception/Exception.h"

#include "Proc/ImplNames.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>
#include <utility>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Conf::FrameInfo;
using Ombrel::Proc::SettingsResizer;
using Support::Map;
using Support::StoredForm;
using CustomModes = SettingsResizer::CustomModes;
using SizeModes = SettingsResizer::SizeModes;
using SizeUOM = ResizeSettings::SizeUOM;

static_assert(std::is_nothrow_move_constructible_v<ResizeSettings> && std::is_nothrow_move_assignable_v<ResizeSettings>);

template <class Effect>
concept HasUnit = requires(Effect& effect)
{
    effect.GetUOM();
};

constexpr FrameInfo LANDSCAPE{800, 600, 4, 3};

SettingsResizer Frame(const FrameInfo& frame, CustomModes mode = CustomModes::Fit)
{
    SettingsResizer record;
    record.SetCustomMode(mode, frame);
    return record;
}

SettingsResizer Scale(double scale)
{
    SettingsResizer record;
    record.SetCustomScale(scale);
    return record;
}

// The mirrors as they stand: a record in neither mode refreshes none.
PropertyTree MirrorsOf(const ResizeSettings& effect)
{
    ResizeSettings copy = effect;
    copy.SetEffectSettings(SettingsResizer());
    return StoredForm(copy);
}

ResizeSettings WithResolution(double resolution)
{
    ResizeSettings effect;
    effect.SetResolution(resolution);
    return effect;
}

TEST(Resizer, IsInNeitherModeUntilASizeIsEntered)
{
    SettingsResizer record;
    EXPECT_NE(static_cast<int>(record.GetSizeMode()), 3);
    EXPECT_NE(static_cast<int>(record.GetSizeMode()), 4);
    EXPECT_EQ(static_cast<int>(record.GetCustomMode()), 2);
    EXPECT_EQ(record.GetFrameInfo(), FrameInfo());
    EXPECT_EQ(record.GetScaleFactor(), 1.0);
    EXPECT_TRUE(record.IsEmpty());

    record.SetCustomMode(CustomModes::Fill, LANDSCAPE);
    EXPECT_EQ(static_cast<int>(record.GetSizeMode()), 4);
    EXPECT_EQ(record.GetCustomMode(), CustomModes::Fill);
    EXPECT_EQ(record.GetFrameInfo(), LANDSCAPE);

    record.SetCustomScale(2.5);
    EXPECT_EQ(static_cast<int>(record.GetSizeMode()), 3);
    EXPECT_EQ(record.GetScaleFactor(), 2.5);
    EXPECT_EQ(record.GetFrameInfo(), LANDSCAPE);
    EXPECT_FALSE(record.IsEmpty());
}

TEST(Resizer, ComparesEverything)
{
    EXPECT_TRUE(Frame(LANDSCAPE) == Frame(LANDSCAPE));
    EXPECT_FALSE(Frame(LANDSCAPE) == Frame({800, 600, 16, 9}));
    EXPECT_FALSE(Frame(LANDSCAPE) == Frame(LANDSCAPE, CustomModes::Fill));
    EXPECT_FALSE(Scale(2.5) == Scale(2.0));
    EXPECT_FALSE(Scale(1.0) == SettingsResizer());
}

TEST(Resize, WithoutASizeItWritesNothing)
{
    EXPECT_EQ(StoredForm(ResizeSettings()), Map({}));
}

TEST(Resize, WritesTheUnitAlone)
{
    ResizeSettings effect;
    effect.SetUOM(SizeUOM::inches);
    EXPECT_EQ(effect.GetUOM(), SizeUOM::inches);
    EXPECT_EQ(StoredForm(effect), Map({{"uom", "inches"}}));
    EXPECT_TRUE(effect.GetTypedSettings() == SettingsResizer());
}

TEST(Resize, WritesTheResolutionAlone)
{
    const ResizeSettings effect = WithResolution(300.0);
    EXPECT_EQ(effect.GetResolution(), 300.0);
    EXPECT_EQ(StoredForm(effect), Map({{"resolution", 300.0}}));
    EXPECT_TRUE(effect.GetTypedSettings() == SettingsResizer());
    EXPECT_EQ(ResizeSettings().GetResolution(), -1.0);
}

TEST(Resize, AFrameComesBackIntoTheSameObject)
{
    ResizeSettings effect(Frame(LANDSCAPE, CustomModes::Fill));
    const PropertyTree stored = StoredForm(effect);
    EXPECT_EQ(stored, Map({{"frameInfo", Map({{"width", 800}, {"height", 600}, {"ax", 4}, {"ay", 3}})}}));

    effect.SetEffectSettings(Frame({1, 2, 3, 4}));
    effect.Deserialize(stored);
    EXPECT_TRUE(effect.GetTypedSettings() == Frame(LANDSCAPE, CustomModes::Fill));
}

TEST(Resize, AFrameWithoutHeightIsAFrame)
{
    const FrameInfo frame{800, 0, 4, 3};
    ResizeSettings effect(Frame(frame));
    const PropertyTree stored = StoredForm(effect);
    EXPECT_EQ(stored, Map({{"frameInfo", Map({{"width", 800}, {"ax", 4}, {"ay", 3}})}}));

    effect.SetEffectSettings(Frame(LANDSCAPE));
    effect.Deserialize(stored);
    EXPECT_EQ(effect.GetTypedSettings().GetFrameInfo(), frame);

    effect.Deserialize(Map({{"frameInfo", Map({{"ax", 4}, {"ay", 3}})}}));
    EXPECT_EQ(effect.GetTypedSettings().GetFrameInfo(), (FrameInfo{0, 0, 4, 3}));
}

TEST(Resize, TheFrameIsCutTo32Bits)
{
    ResizeSettings effect(Frame(LANDSCAPE));
    effect.Deserialize(Map({{"frameInfo", Map({{"width", 4294967297}, {"height", -1}, {"ax", 4}, {"ay", 3}})}}));
    EXPECT_EQ(effect.GetTypedSettings().GetFrameInfo(), (FrameInfo{1, 4294967295, 4, 3}));
}

TEST(Resize, AFrameWithoutAspectIsRefused)
{
    ResizeSettings effect(Frame(LANDSCAPE));
    for (const PropertyTree& tree : {Map({}), Map({{"frameInfo", Map({{"width", 8}, {"height", 6}, {"ax", 4}})}}),
                                     Map({{"frameInfo", Map({{"width", 8}, {"height", 6}, {"ay", 3}})}})})
    {
        EXPECT_THROW(effect.Deserialize(tree), Ombrel::Exception);
        EXPECT_TRUE(effect.GetTypedSettings() == Frame(LANDSCAPE));
    }
}

TEST(Resize, TheRefusalSaysWhyAndWhere)
{
    ResizeSettings effect(Frame(LANDSCAPE));
    try
    {
        effect.Deserialize(Map({}));
        FAIL() << "a frame without aspect was taken";
    }
    catch (const Ombrel::Exception& failure)
    {
        ASSERT_TRUE(boost::get_error_info<Ombrel::ErrorDescription>(failure));
        EXPECT_EQ(*boost::get_error_info<Ombrel::ErrorDescription>(failure), "Aspect is not specified");
        EXPECT_TRUE(boost::get_error_info<Ombrel::ErrorCallStack>(failure));
        EXPECT_STREQ(*boost::get_error_info<boost::throw_file>(failure), "Proc/EffectSettings/ResizeSettings");
        EXPECT_STREQ(*boost::get_error_info<boost::throw_function>(failure), "Deserialize");
        EXPECT_EQ(*boost::get_error_info<boost::throw_line>(failure), 105);
    }
}

TEST(Resize, WhatWasReadBeforeARefusalStays)
{
    ResizeSettings effect(Frame(LANDSCAPE));
    EXPECT_EQ(StoredForm(effect).getMap().size(), 1u);
    const PropertyTree tree = Map({{"implName", "gpu"},
                                   {"helperSettings", Map({{"maxWidth", 640}})},
                                   {"resolution", 300.0},
                                   {"uom", "cm"},
                                   {"frameInfo", Map({{"width", 8}, {"ax", 4}})},
                                   {"scaleFactor", 2.5}});
    EXPECT_THROW(effect.Deserialize(tree), Ombrel::Exception);
    EXPECT_EQ(effect.GetResolution(), 300.0);
    EXPECT_EQ(effect.GetUOM(), SizeUOM::cm);
    EXPECT_EQ(MirrorsOf(effect), tree);
    EXPECT_TRUE(effect.GetTypedSettings() == Frame(LANDSCAPE));
}

TEST(Resize, AScaleComesBackIntoAScalingRecord)
{
    ResizeSettings effect(Scale(2.5));
    const PropertyTree stored = StoredForm(effect);
    EXPECT_EQ(stored, Map({{"scaleFactor", 2.5}}));

    effect.SetEffectSettings(Scale(7.0));
    effect.Deserialize(stored);
    EXPECT_TRUE(effect.GetTypedSettings() == Scale(2.5));

    effect.Deserialize(Map({}));
    EXPECT_TRUE(effect.GetTypedSettings() == Scale(1.0));
}

TEST(Resize, ARecordInAnotherModeIsLeftAlone)
{
    ResizeSettings plain;
    plain.Deserialize(Map({{"frameInfo", Map({{"width", 8}, {"height", 6}, {"ax", 4}, {"ay", 3}})}, {"scaleFactor", 2.5}}));
    EXPECT_TRUE(plain.GetTypedSettings() == SettingsResizer());

    ResizeSettings scaling(Scale(7.0));
    scaling.Deserialize(Map({{"frameInfo", Map({{"width", 8}, {"height", 6}, {"ax", 4}, {"ay", 3}})}}));
    EXPECT_TRUE(scaling.GetTypedSettings() == Scale(1.0));

    ResizeSettings framing(Frame(LANDSCAPE, CustomModes::Stretch));
    framing.Deserialize(Map({{"frameInfo", Map({{"ax", 4}, {"ay", 3}})}, {"scaleFactor", 2.5}}));
    EXPECT_TRUE(framing.GetTypedSettings() == Frame({0, 0, 4, 3}, CustomModes::Stretch));
}

TEST(Resize, AnObjectMadeOfAFilledRecordHasDefaultMirrors)
{
    EXPECT_EQ(MirrorsOf(ResizeSettings(Frame(LANDSCAPE))), Map({}));
    EXPECT_EQ(MirrorsOf(ResizeSettings(Scale(2.5))), Map({}));

    // The custom mode has no key: until the first write it is the default one.
    const PropertyTree frame = Map({{"frameInfo", Map({{"ax", 4}, {"ay", 3}})}});
    ResizeSettings unwritten(Frame(LANDSCAPE, CustomModes::Fill));
    unwritten.Deserialize(frame);
    EXPECT_EQ(unwritten.GetTypedSettings().GetCustomMode(), CustomModes::Stretch);

    ResizeSettings written(Frame(LANDSCAPE, CustomModes::Fill));
    StoredForm(written);
    written.Deserialize(frame);
    EXPECT_EQ(written.GetTypedSettings().GetCustomMode(), CustomModes::Fill);
}

TEST(Resize, OnlyAWriteRefreshesTheMirrors)
{
    ResizeSettings effect(Frame(LANDSCAPE));
    StoredForm(effect);
    effect.GetTypedSettings().SetCustomMode(CustomModes::Fit, {1, 2, 3, 4});
    EXPECT_EQ(MirrorsOf(effect), Map({{"frameInfo", Map({{"width", 800}, {"height", 600}, {"ax", 4}, {"ay", 3}})}}));
    StoredForm(effect);
    EXPECT_EQ(MirrorsOf(effect), Map({{"frameInfo", Map({{"width", 1}, {"height", 2}, {"ax", 3}, {"ay", 4}})}}));
}

TEST(Resize, OnlyTheMirrorOfTheModeIsRefreshed)
{
    SettingsResizer record = Frame(LANDSCAPE);
    record.SetCustomScale(2.5);
    EXPECT_EQ(StoredForm(ResizeSettings(record)), Map({{"scaleFactor", 2.5}}));

    record.SetCustomMode(CustomModes::Fit, LANDSCAPE);
    EXPECT_EQ(StoredForm(ResizeSettings(record)),
              Map({{"frameInfo", Map({{"width", 800}, {"height", 600}, {"ax", 4}, {"ay", 3}})}}));
}

TEST(Resize, AWrittenMapStartsFresh)
{
    PropertyTree tree = Map({{"scaleFactor", 2.5}, {"other", 1}});
    ResizeSettings().Serialize(tree);
    EXPECT_EQ(tree, Map({}));
}

TEST(Resize, AScaleThatIsNoNumberIsWritten)
{
    EXPECT_TRUE(StoredForm(ResizeSettings(Scale(std::nan("")))).contains("scaleFactor"));
}

TEST(Resize, ComparesTheResolutionWithATolerance)
{
    EXPECT_TRUE(WithResolution(300.0) == WithResolution(300.000001));
    EXPECT_TRUE(WithResolution(300.000001) == WithResolution(300.0));
    EXPECT_FALSE(WithResolution(300.0) == WithResolution(300.00002));
    EXPECT_FALSE(WithResolution(300.00002) == WithResolution(300.0));
    EXPECT_TRUE(WithResolution(300.0) != WithResolution(300.00002));
    EXPECT_FALSE(WithResolution(300.0) != WithResolution(300.000001));
    EXPECT_FALSE(WithResolution(0.0) == WithResolution(1e-5));
    EXPECT_FALSE(WithResolution(1e-5) == WithResolution(0.0));
    EXPECT_FALSE(WithResolution(std::nan("")) == WithResolution(300.0));
    EXPECT_FALSE(WithResolution(300.0) == WithResolution(std::nan("")));
}

TEST(Resize, ComparesByTheSameRuleThroughTheInterface)
{
    const ResizeSettings effect = WithResolution(300.0);
    const IEffectSettings& interface = effect;
    EXPECT_TRUE(interface == WithResolution(300.000001));
    EXPECT_FALSE(interface == WithResolution(300.00002));
}

TEST(Resize, UnitAndMirrorsPlayNoPartInTheComparison)
{
    ResizeSettings a;
    ResizeSettings b;
    a.SetUOM(SizeUOM::mm);
    b.Deserialize(Map({{"frameInfo", Map({{"ax", 4}})}, {"scaleFactor", 2.5}}));
    EXPECT_TRUE(a == b);

    b.SetEffectSettings(Scale(2.5));
    EXPECT_FALSE(a == b);
}

TEST(Resize, AlwaysRunsOnOneImplementation)
{
    ResizeSettings effect;
    EXPECT_EQ(effect.GetImplName(), Ombrel::Proc::ImplNames::FFMPEG);
    effect.Deserialize(Map({{"implName", "gpu"}}));
    EXPECT_EQ(effect.GetImplName(), "ffmpeg");
    EXPECT_EQ(StoredForm(effect), Map({{"implName", "gpu"}}));
}

TEST(Resize, NamesItsParameters)
{
    EXPECT_EQ(ResizeSettings::FRAME_SIZE_MODE, "frameSize");
    EXPECT_EQ(ResizeSettings::SCALE_FACTOR, "scaleFactor");
    EXPECT_EQ(ResizeSettings::MODE, "resizeMode");
    EXPECT_EQ(ResizeSettings::METHOD, "resizeMethod");
    EXPECT_EQ(ResizeSettings::UOM, "UOM");
}

TEST(Resize, TheUnitIsAskedOfAnObjectThatMayChange)
{
    EXPECT_TRUE(HasUnit<ResizeSettings>);
    EXPECT_FALSE(HasUnit<const ResizeSettings>);
}

TEST(Resize, KeepsTheOtherAnswersOfTheFamily)
{
    ResizeSettings effect(Scale(2.5));
    EXPECT_FALSE(effect.IsAdditive());
    EXPECT_FALSE(effect.IsEmpty());
    EXPECT_FALSE(ResizeSettings().IsEmpty());
    effect.Add(ResizeSettings(Scale(7.0)));
    EXPECT_TRUE(effect.GetTypedSettings() == Scale(2.5));
}

TEST(Resize, ACloneHasTheMirrorsToo)
{
    ResizeSettings effect(Frame(LANDSCAPE, CustomModes::Fill));
    effect.Deserialize(Map({{"resolution", 300.0},
                            {"uom", "cm"},
                            {"frameInfo", Map({{"width", 8}, {"height", 6}, {"ax", 4}, {"ay", 3}})},
                            {"scaleFactor", 2.5}}));
    const auto clone = std::dynamic_pointer_cast<ResizeSettings>(effect.Clone());
    EXPECT_EQ(MirrorsOf(*clone), MirrorsOf(effect));
    EXPECT_EQ(MirrorsOf(*clone).getMap().size(), 4u);
    EXPECT_TRUE(clone->GetTypedSettings() == effect.GetTypedSettings());
}

TEST(Resize, IsAssignedWithItsMirrors)
{
    const PropertyTree form = Map({{"helperSettings", Map({{"maxWidth", 640}})}, {"resolution", 300.0}, {"scaleFactor", 2.5}});
    ResizeSettings effect(Scale(2.5));
    effect.Deserialize(form);
    ResizeSettings assigned;
    assigned = effect;
    EXPECT_EQ(MirrorsOf(assigned), form);
    EXPECT_EQ(MirrorsOf(effect), form);
    EXPECT_TRUE(assigned.GetTypedSettings() == Scale(2.5));
}

TEST(Resize, IsMoved)
{
    ResizeSettings effect(Scale(2.5));
    effect.Deserialize(Map({{"helperSettings", Map({{"maxWidth", 640}})}, {"resolution", 300.0}, {"scaleFactor", 2.5}}));
    const PropertyTree stored = StoredForm(effect);

    ResizeSettings moved(std::move(effect));
    EXPECT_EQ(StoredForm(moved), stored);

    ResizeSettings assigned;
    assigned = std::move(moved);
    EXPECT_EQ(StoredForm(assigned), stored);
    EXPECT_TRUE(assigned.GetTypedSettings() == Scale(2.5));
}

} // namespace
