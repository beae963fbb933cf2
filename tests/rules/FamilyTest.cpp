#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/AdjusterSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <type_traits>
#include <typeinfo>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectAcid;
using Support::List;
using Support::Map;
using Support::StoredForm;

AcidSettings Acid(int radius, double sigma = 0.5)
{
    SettingsEffectAcid record;
    record.radius = radius;
    record.sigma = sigma;
    return AcidSettings(record);
}

TEST(Family, ADefaultObjectIsAnEmptyMapAndNoNullTree)
{
    EXPECT_EQ(StoredForm(AcidSettings()), Map({}));
    EXPECT_FALSE(StoredForm(AcidSettings()).isNull());
}

TEST(Family, WritesWhatDiffers)
{
    EXPECT_EQ(StoredForm(Acid(3)), Map({{"radius", 3}}));
    EXPECT_EQ(StoredForm(Acid(0, 2.0)), Map({{"sigma", 2.0}}));
}

TEST(Family, SerializeReplacesWhatTheTreeHeld)
{
    PropertyTree tree = Map(
        {{"stray", 1}, {"radius", 9}, {"implName", "gpu"}, {"name", "EFFECT_OTHER"}, {"helperSettings", Map({{"stray", 1}})}});
    Acid(0, 2.0).Serialize(tree);
    EXPECT_EQ(tree, Map({{"sigma", 2.0}}));

    tree = Map({{"stray", 1}});
    EffectSettings::SerializePtr(tree, AcidSettings::CreateBase());
    EXPECT_EQ(tree, Map({{"name", "EFFECT_ACID"}}));
}

TEST(Family, BaseMembersStandBesideTheRecord)
{
    AcidSettings effect = Acid(3);
    effect.Deserialize(Map({{"implName", "gpu"}, {"helperSettings", Map({{"maxWidth", 640}})}, {"radius", 4}}));
    EXPECT_EQ(StoredForm(effect), Map({{"implName", "gpu"}, {"helperSettings", Map({{"maxWidth", 640}})}, {"radius", 4}}));
}

TEST(Family, AMissingBaseMemberStaysAsItWas)
{
    AcidSettings effect = Acid(3, 2.0);
    effect.Deserialize(
        Map({{"implName", "gpu"}, {"helperSettings", Map({{"maxWidth", 640}, {"undoSet", true}})}, {"radius", 4}}));
    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetImplName(), "gpu");
    EXPECT_EQ(effect.GetHelperSettings().GetMaxWidth(), 640u);
    EXPECT_EQ(effect.GetTypedSettings().radius, 0);
    EXPECT_EQ(effect.GetTypedSettings().sigma, 0.5);
}

TEST(Family, APresentHelperMapResetsItsMissingKeys)
{
    AcidSettings effect;
    effect.HelperSetting().SetMaxWidth(640);
    effect.HelperSetting().SetMaxHeight(480);
    effect.HelperSetting().SetUndoSet(true);
    effect.HelperSetting().SetApplyModeFlag(HelperSettings::ApplySetting::ApplyStop, true);
    effect.Deserialize(Map({{"helperSettings", Map({{"maxHeight", 100}})}}));
    EXPECT_EQ(effect.GetHelperSettings().GetMaxHeight(), 100u);
    EXPECT_EQ(effect.GetHelperSettings().GetMaxWidth(), 4294967295u);

    effect.Deserialize(Map({{"helperSettings", Map({})}}));
    EXPECT_TRUE(effect.GetHelperSettings() == HelperSettings());
}

TEST(Family, DefaultImplNameIsNotWritten)
{
    AcidSettings effect;
    effect.Deserialize(Map({{"implName", "default"}, {"helperSettings", Map({})}}));
    EXPECT_EQ(StoredForm(effect), Map({}));
    effect.Deserialize(Map({{"implName", ""}}));
    EXPECT_EQ(StoredForm(effect), Map({{"implName", ""}}));
}

TEST(Family, ReadsBaseMembersBeforeTheRecord)
{
    AcidSettings effect;
    EXPECT_THROW(effect.Deserialize(Map({{"implName", "gpu"}, {"helperSettings", 5}, {"radius", 4}})), std::invalid_argument);
    EXPECT_EQ(effect.GetImplName(), "gpu");
    EXPECT_EQ(effect.GetTypedSettings().radius, 0);

    EXPECT_THROW(effect.Deserialize(Map({{"implName", 5}, {"helperSettings", Map({{"maxWidth", 1}})}})), std::invalid_argument);
    EXPECT_EQ(effect.GetHelperSettings().GetMaxWidth(), 4294967295u);
}

TEST(Family, ReadsFromAMapOnly)
{
    AcidSettings effect = Acid(3);
    for (const PropertyTree& tree : {PropertyTree(), PropertyTree(5), List({})})
    {
        EXPECT_THROW(effect.Deserialize(tree), std::invalid_argument);
    }
    EXPECT_EQ(effect.GetTypedSettings().radius, 3);
}

TEST(Family, HelperSettingsPlayNoPartInTheComparison)
{
    AcidSettings a = Acid(3);
    AcidSettings b = Acid(3);
    b.HelperSetting().SetMaxWidth(640);
    b.Deserialize(Map({{"implName", "gpu"}, {"radius", 3}}));
    EXPECT_TRUE(a == b);
    EXPECT_NE(StoredForm(a), StoredForm(b));
}

TEST(Family, ComparesExactly)
{
    EXPECT_TRUE(Acid(3) == Acid(3));
    EXPECT_FALSE(Acid(3) == Acid(4));
    EXPECT_FALSE(Acid(3) == Acid(3, std::nextafter(0.5, 1.0)));
    const AcidSettings nan = Acid(3, std::nan(""));
    EXPECT_FALSE(nan == AcidSettings(nan));
    EXPECT_FALSE(*nan.Clone() == nan);
}

// Whatever the types on both sides, the same operator answers.
TEST(Family, ComparesThroughAnyType)
{
    const AcidSettings acid = Acid(3);
    const AcidSettings same = Acid(3);
    const VibranceSettings vibrance;
    const IEffectSettings& base = acid;
    const EffectSettings& middle = acid;
    EXPECT_TRUE(acid == same);
    EXPECT_FALSE(acid != same);
    EXPECT_TRUE(base == same);
    EXPECT_TRUE(same == base);
    EXPECT_TRUE(base == middle);
    EXPECT_TRUE(middle == same);
    EXPECT_FALSE(acid == vibrance);
    EXPECT_TRUE(acid != vibrance);
    EXPECT_FALSE(base == vibrance);
    EXPECT_TRUE(vibrance != base);
}

TEST(Family, OtherClassIdsAreUnequalAndCannotBeAdded)
{
    AcidSettings acid = Acid(3);
    EXPECT_NO_THROW(EXPECT_FALSE(acid == VibranceSettings()));
    EXPECT_THROW(acid.Add(VibranceSettings()), std::bad_cast);
}

TEST(Family, AddingDoesNothing)
{
    AcidSettings acid = Acid(3);
    acid.Add(Acid(4));
    acid.Add(static_cast<const IEffectSettings&>(Acid(4)));
    EXPECT_TRUE(acid == Acid(3));
    EXPECT_FALSE(acid.IsAdditive());
}

TEST(Family, SetEffectSettingsReplacesTheRecordOnly)
{
    AcidSettings effect;
    effect.Deserialize(Map({{"implName", "gpu"}}));
    effect.HelperSetting().SetMaxWidth(640);
    effect.SetEffectSettings(Acid(7, 1.5).GetTypedSettings());
    EXPECT_EQ(effect.GetTypedSettings().radius, 7);
    EXPECT_EQ(effect.GetTypedSettings().sigma, 1.5);
    EXPECT_EQ(effect.GetImplName(), "gpu");
    EXPECT_EQ(effect.GetHelperSettings().GetMaxWidth(), 640u);

    EXPECT_THROW(effect.SetEffectSettings(VibranceSettings().GetTypedSettings()), std::bad_cast);
    EXPECT_EQ(effect.GetTypedSettings().radius, 7);
    effect.SetEffectSettings(effect.GetEffectSettings());
    EXPECT_EQ(effect.GetTypedSettings().radius, 7);
}

TEST(Family, CloneCopiesEverything)
{
    AcidSettings effect = Acid(7);
    effect.Deserialize(Map({{"implName", "gpu"}, {"helperSettings", Map({{"maxWidth", 640}})}, {"radius", 7}}));
    const auto clone = effect.Clone();
    EXPECT_EQ(clone->GetImplName(), "gpu");
    EXPECT_EQ(clone->GetHelperSettings().GetMaxWidth(), 640u);
    EXPECT_TRUE(*clone == effect);
    clone->HelperSetting().SetMaxWidth(1);
    EXPECT_EQ(effect.GetHelperSettings().GetMaxWidth(), 640u);
}

TEST(Family, CreateTakesARecord)
{
    const std::shared_ptr<AcidSettings> effect = AcidSettings::Create(Acid(7).GetTypedSettings());
    EXPECT_EQ(effect->GetTypedSettings().radius, 7);
    const std::shared_ptr<IEffectSettings> base = AcidSettings::CreateBase();
    EXPECT_TRUE(*base == AcidSettings());
}

TEST(Family, TheRecordIsReachedInEachForm)
{
    AcidSettings effect = Acid(7);
    effect.GetTypedSettings().sigma = 9.0;
    EXPECT_EQ(&effect.GetEffectSettings(), &effect.GetTypedSettings());
    EXPECT_EQ(&effect.GetEffectSettingsRef(), &effect.GetTypedSettings());
    EXPECT_EQ(dynamic_cast<const SettingsEffectAcid&>(effect.GetEffectSettings()).sigma, 9.0);
    EXPECT_EQ(&std::as_const(effect).GetTypedSettings(), &effect.GetTypedSettings());
    EXPECT_EQ(&effect.HelperSetting(), &effect.GetHelperSettings());
}

TEST(Family, AnEffectAnswersForItselfWhetherItIsEmpty)
{
    EXPECT_TRUE(AcidSettings().GetEffectSettings().IsEmpty());
    EXPECT_FALSE(AcidSettings().IsEmpty());
}

TEST(Family, PropertyAccessIsAViewOfTheRecord)
{
    AcidSettings effect = Acid(7);
    effect.HelperSetting().SetMaxWidth(640);
    const auto access = effect.GetPropertyAccess();
    access->SetProperty("radius", 8);
    EXPECT_EQ(effect.GetTypedSettings().radius, 8);
    effect.GetTypedSettings().radius = 9;
    EXPECT_EQ(std::as_const(effect).GetPropertyAccess()->GetProperty("radius"), PropertyTree(9));

    access->SetProperty("implName", "gpu");
    access->SetProperty("helperSettings", Map({}));
    EXPECT_EQ(effect.GetImplName(), "default");
    EXPECT_EQ(effect.GetHelperSettings().GetMaxWidth(), 640u);
    EXPECT_EQ(access->ListProperties(), (std::vector<std::string>{"radius", "sigma"}));
}

TEST(Family, IsCopiedAndAssigned)
{
    AcidSettings effect = Acid(7);
    effect.HelperSetting().SetMaxWidth(640);
    AcidSettings copy(effect);
    EXPECT_TRUE(copy == effect);
    AcidSettings assigned;
    assigned = effect;
    EXPECT_TRUE(assigned == effect);
    EXPECT_EQ(assigned.GetHelperSettings().GetMaxWidth(), 640u);
}

static_assert(!std::is_default_constructible_v<EffectSettings> && std::is_abstract_v<EffectSettings>);
static_assert(std::is_convertible_v<AcidSettings*, EffectSettingsOneInput<SettingsEffectAcid, AcidSettings>*>);
static_assert(std::is_convertible_v<AcidSettings*, EffectSettingsOneInputReflection<SettingsEffectAcid, AcidSettings>*>);
static_assert(std::is_convertible_v<AcidSettings*, EffectSettingsImpl<SettingsEffectAcid, AcidSettings>*>);
static_assert(static_cast<int>(IEffectSettings::InputType::One) == 0);
static_assert(static_cast<int>(IEffectSettings::InputType::Two) == 1);
static_assert(static_cast<int>(IEffectSettings::InputType::Var) == 2);

} // namespace
