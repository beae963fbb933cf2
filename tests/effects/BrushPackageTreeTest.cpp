#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"

#include "Exception/Exception.h"
#include "effects/BrushPackageSamples.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <utility>

namespace
{

using namespace BrushPackageSamples;
using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectShapeMask;
using Support::List;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

PropertyTree VibranceForm(int strength)
{
    return Map({{"name", "EFFECT_VIBRANCE"}, {"strength", strength}});
}

TEST(BrushPackageTree, ADefaultPackageIsEmptyAndStoresNothing)
{
    const EffectsPackageWithBrushSettings effect;
    EXPECT_TRUE(effect.IsEmpty());
    EXPECT_FALSE(effect.IsAdditive());
    EXPECT_EQ(StoredForm(effect), Map({}));
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect.Clone());
    EXPECT_EQ(tree, Map({{"name", "EffectsPackageOneInputWithBrush"}}));
}

TEST(BrushPackageTree, EffectsAreStoredInTheirOrderWithTheirNames)
{
    EffectsPackageWithBrushSettings effect(Foreground({Vibrance(3), nullptr, Acid(0), Vibrance(4)}));
    effect.GetTypedSettings().SetBackgroundEffects({nullptr});
    const PropertyTree stored =
        Map({{"foregroundEffects", List({VibranceForm(3), PropertyTree(), Map({{"name", "EFFECT_ACID"}}), VibranceForm(4)})},
             {"backgroundEffects", List({PropertyTree()})}});
    EXPECT_EQ(StoredForm(effect), stored);

    const auto restored = Restored<EffectsPackageWithBrushSettings>(stored);
    EXPECT_TRUE(restored == effect);
    EXPECT_EQ(StoredForm(restored), stored);
    ASSERT_EQ(restored.GetTypedSettings().GetForegroundEffects().size(), 4u);
    EXPECT_FALSE(restored.GetTypedSettings().GetForegroundEffects()[1]);
}

TEST(BrushPackageTree, ReadEffectsAreNewObjectsAndReplaceTheOldOnes)
{
    EffectsPackageWithBrushSettings effect(Foreground({Vibrance(1), Vibrance(2)}));
    const EffectList old = effect.GetTypedSettings().GetForegroundEffects();
    effect.Deserialize(Map({{"foregroundEffects", List({VibranceForm(1)})}}));
    ASSERT_EQ(effect.GetTypedSettings().GetForegroundEffects().size(), 1u);
    EXPECT_NE(effect.GetTypedSettings().GetForegroundEffects()[0], old[0]);
    EXPECT_TRUE(*effect.GetTypedSettings().GetForegroundEffects()[0] == *old[0]);
    effect.Deserialize(Map({{"foregroundEffects", List({})}}));
    EXPECT_TRUE(effect.GetTypedSettings().GetForegroundEffects().empty());
}

TEST(BrushPackageTree, WhatIsNoListLeavesTheEffects)
{
    const EffectList effects{Vibrance(1)};
    for (const PropertyTree& tree : {PropertyTree(5), PropertyTree("text"), PropertyTree(), Map({})})
    {
        EffectsPackageWithBrushSettings effect(Foreground(effects));
        effect.GetTypedSettings().SetBackgroundEffects(effects);
        effect.Deserialize(Map({{"foregroundEffects", tree}, {"backgroundEffects", tree}}));
        EXPECT_EQ(effect.GetTypedSettings().GetForegroundEffects(), effects) << testing::PrintToString(tree);
        EXPECT_EQ(effect.GetTypedSettings().GetBackgroundEffects(), effects) << testing::PrintToString(tree);
    }
}

TEST(BrushPackageTree, MissingKeysReset)
{
    EffectsPackageWithBrushSettings effect(Foreground({Vibrance(1)}));
    Record& record = effect.GetTypedSettings();
    record.SetBackgroundEffects({Vibrance(1)});
    record.SetBackgroundFrameIndex(3);
    record.SetAlpha(SettingsEffectShapeMask());
    effect.Deserialize(Map({}));
    EXPECT_TRUE(record.GetForegroundEffects().empty());
    EXPECT_TRUE(record.GetBackgroundEffects().empty());
    EXPECT_EQ(record.GetBackgroundFrameIndex(), 4294967295u);
    EXPECT_EQ(record.GetAlpha().m_foreground, 0);
    EXPECT_EQ(record.GetAlpha().m_background, 255);
}

TEST(BrushPackageTree, TheFrameIndexKeepsItsLowBits)
{
    for (const auto& [stored, read] : {std::pair<std::int64_t, std::uint32_t>{-1, 4294967295}, {4294967296, 0}, {7, 7}})
    {
        const auto effect = Restored<EffectsPackageWithBrushSettings>(Map({{"backgroundIndex", stored}}));
        EXPECT_EQ(effect.GetTypedSettings().GetBackgroundFrameIndex(), read) << stored;
    }
}

// The package's mask and a mask by itself have different defaults, and each is left out on its own level.
TEST(BrushPackageTree, TheMaskHasTwoLevelsOfDefault)
{
    EffectsPackageWithBrushSettings effect;
    SettingsEffectShapeMask mask = effect.GetTypedSettings().GetAlpha();
    mask.m_background = 254;
    effect.GetTypedSettings().SetAlpha(mask);
    EXPECT_EQ(StoredForm(effect), Map({{"alpha", Map({{"foreground", 0}, {"background", 254}})}}));
    EXPECT_TRUE(Restored<EffectsPackageWithBrushSettings>(StoredForm(effect)) == effect);

    effect.GetTypedSettings().SetAlpha(SettingsEffectShapeMask());
    EXPECT_EQ(StoredForm(effect), Map({{"alpha", Map({})}}));
    EXPECT_TRUE(Restored<EffectsPackageWithBrushSettings>(StoredForm(effect)) == effect);

    effect.Deserialize(Map({{"alpha", Map({{"x", 0.5}})}}));
    EXPECT_EQ(effect.GetTypedSettings().GetAlpha().m_x, 0.5);
    EXPECT_EQ(effect.GetTypedSettings().GetAlpha().m_foreground, 255);
    EXPECT_EQ(effect.GetTypedSettings().GetAlpha().m_background, 0);
}

TEST(BrushPackageTree, PropertyAccessLeavesTheMasksOtherKeys)
{
    EffectsPackageWithBrushSettings effect;
    effect.GetPropertyAccess()->SetProperty("alpha", Map({{"x", 0.5}}));
    EXPECT_EQ(effect.GetTypedSettings().GetAlpha().m_foreground, 0);
    EXPECT_EQ(effect.GetTypedSettings().GetAlpha().m_background, 255);
    EXPECT_EQ(StoredForm(effect), Map({{"alpha", Map({{"foreground", 0}, {"background", 255}, {"x", 0.5}})}}));
}

TEST(BrushPackageTree, AnUnknownEffectEndsTheRead)
{
    EffectsPackageWithBrushSettings effect(Foreground({Acid(1), Acid(2), Acid(3)}));
    effect.GetTypedSettings().SetBlendingStrength(7);
    const PropertyTree tree = Map({
        {"foregroundEffects", List({VibranceForm(3), Map({{"name", "EFFECT_OF_TOMORROW"}}), VibranceForm(4)})},
        {"blendingStrength", 9},
    });
    EXPECT_THROW(effect.Deserialize(tree), Ombrel::Exception);
    ASSERT_EQ(effect.GetTypedSettings().GetForegroundEffects().size(), 1u);
    EXPECT_EQ(StoredForm(effect), Map({{"foregroundEffects", List({VibranceForm(3)})}, {"blendingStrength", 7}}));
    EXPECT_THROW(effect.Deserialize(Map({{"backgroundEffects", List({Map({})})}})), std::out_of_range);
    EXPECT_THROW(effect.Deserialize(Map({{"backgroundEffects", List({5})}})), std::invalid_argument);
}

TEST(BrushPackageTree, TheForegroundIsReadFirst)
{
    EffectsPackageWithBrushSettings effect;
    EXPECT_THROW(effect.Deserialize(Map({{"backgroundEffects", List({5})}, {"foregroundEffects", List({VibranceForm(3)})}})),
                 std::invalid_argument);
    EXPECT_EQ(StoredForm(effect), Map({{"foregroundEffects", List({VibranceForm(3)})}}));
}

TEST(BrushPackageTree, APackageHoldsPackages)
{
    const auto inner = std::make_shared<EffectsPackageWithBrushSettings>(Background({Vibrance(3)}));
    const EffectsPackageWithBrushSettings outer(Foreground({inner, Acid(0)}));
    const PropertyTree stored =
        Map({{"foregroundEffects",
              List({Map({{"name", "EffectsPackageOneInputWithBrush"}, {"backgroundEffects", List({VibranceForm(3)})}}),
                    Map({{"name", "EFFECT_ACID"}})})}});
    EXPECT_EQ(StoredForm(outer), stored);
    EXPECT_FALSE(outer.IsEmpty()) << "the inner package's record is not empty";
    const auto restored = Restored<EffectsPackageWithBrushSettings>(stored);
    EXPECT_TRUE(restored == outer);
    EXPECT_EQ(StoredForm(restored), stored);
    inner->GetTypedSettings().SetBlendingStrength(255);
    EXPECT_TRUE(outer.IsEmpty());
}

} // namespace
