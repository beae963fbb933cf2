#include "Proc/EffectSettings/FacePackageSettings.h"

#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "effects/FacePackageSamples.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

namespace
{

using namespace FacePackageSamples;
using namespace Ombrel::PhotoCore;
using Ombrel::Proc::Face;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

static_assert(std::is_nothrow_move_constructible_v<FacePackageSettings>);
static_assert(std::is_nothrow_move_assignable_v<FacePackageSettings>);
static_assert(
    std::is_same_v<decltype(std::declval<const SettingsEffectFacePackage&>().GetFaces()), const std::vector<FaceItem>&>);
static_assert(std::is_same_v<decltype(std::declval<const SettingsEffectFacePackage&>().GetCurrentFace()), std::uint64_t>);

TEST(FaceItem, ACopyOwnsACloneOfTheEffect)
{
    const FaceItem item = Item(FaceAt(1), Vibrance(3));
    const FaceItem copy(item);
    FaceItem assigned = Item(FaceAt(9), Vibrance(9));
    assigned = item;
    for (const FaceItem* other : {&copy, &std::as_const(assigned)})
    {
        EXPECT_NE(other->effect, item.effect);
        EXPECT_EQ(StrengthOf(other->effect), 3);
        EXPECT_TRUE(other->face == FaceAt(1));
        EXPECT_TRUE(*other == item);
    }
}

TEST(FaceItem, ANullEffectIsCopiedAsNull)
{
    const FaceItem item;
    EXPECT_TRUE(item.face.IsEmpty());
    EXPECT_FALSE(item.effect);
    EXPECT_FALSE(FaceItem(item).effect);
    FaceItem assigned = Item(FaceAt(9), Vibrance(9));
    assigned = item;
    EXPECT_FALSE(assigned.effect);
    EXPECT_TRUE(assigned == item);
}

TEST(FaceItem, SurvivesItsAssignmentToItself)
{
    FaceItem item = Item(FaceAt(1), Vibrance(3));
    const FaceItem& same = item;
    item = same;
    EXPECT_TRUE(item.face == FaceAt(1));
    EXPECT_EQ(StrengthOf(item.effect), 3);
}

TEST(FaceItem, ComparesFaceAndEffect)
{
    const FaceItem item = Item(FaceAt(1), Vibrance(3));
    EXPECT_TRUE(item == Item(FaceAt(1), Vibrance(3)));
    EXPECT_FALSE(item == Item(FaceAt(2), Vibrance(3)));
    EXPECT_FALSE(item == Item(FaceAt(1), Vibrance(4)));
    EXPECT_FALSE(item == Item(FaceAt(1), std::make_shared<AcidSettings>()));
    EXPECT_FALSE(item == Item(FaceAt(1), nullptr));
    EXPECT_FALSE(Item(FaceAt(1), nullptr) == item);
    EXPECT_TRUE(Item(FaceAt(1), nullptr) == Item(FaceAt(1), nullptr));
}

// A simple effect equals nothing, but a pointer equals itself.
TEST(FaceItem, TheSameEffectIsEqualWhateverItSaysOfItself)
{
    const auto simple = std::make_shared<EffectSettingsSimple>();
    const FaceItem item = Item(Face(), simple);
    EXPECT_TRUE(item == Item(Face(), simple));
    EXPECT_FALSE(item == FaceItem(item));
}

TEST(FacePackage, HasNoFacesByDefault)
{
    const SettingsEffectFacePackage record;
    EXPECT_EQ(record.GetCurrentFace(), 0u);
    EXPECT_TRUE(record.GetFaces().empty());
    EXPECT_EQ(SettingsEffectFacePackage::CLASS_ID, "SettingsEffectFacePackage");

    const FacePackageSettings effect;
    EXPECT_EQ(StoredForm(effect), Map({}));
    EXPECT_TRUE(Restored<FacePackageSettings>(Map({})) == effect);
}

TEST(FacePackage, IsEmptyWithoutFacesAndOnlyInItsRecord)
{
    FacePackageSettings effect;
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
    EXPECT_FALSE(effect.IsAdditive());
    effect.GetTypedSettings().SetCurrentFace(5);
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    effect.GetTypedSettings().SetFaces({FaceItem()});
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
}

TEST(FacePackage, TakesTheListOver)
{
    std::vector<FaceItem> faces(1);
    faces[0].effect = Vibrance(3);
    const IEffectSettings* effect = faces[0].effect.get();
    const SettingsEffectFacePackage record(7, std::move(faces));
    EXPECT_EQ(record.GetCurrentFace(), 7u);
    ASSERT_EQ(record.GetFaces().size(), 1u);
    EXPECT_EQ(record.GetFaces()[0].effect.get(), effect);
}

TEST(FacePackage, SetFacesClonesTheEffects)
{
    std::vector<FaceItem> faces(2);
    const auto effect = Vibrance(3);
    faces[0].effect = effect;
    SettingsEffectFacePackage record;
    record.SetFaces(faces);
    effect->GetTypedSettings().m_strength = 9;
    ASSERT_EQ(record.GetFaces().size(), 2u);
    EXPECT_EQ(StrengthOf(record.GetFaces()[0].effect), 3);
    EXPECT_FALSE(record.GetFaces()[1].effect);
}

TEST(FacePackage, SetFacesWithItsOwnListDoesNothing)
{
    SettingsEffectFacePackage record = Package({Item(FaceAt(1), Vibrance(3))});
    const auto effect = record.GetFaces()[0].effect;
    record.SetFaces(record.GetFaces());
    ASSERT_EQ(record.GetFaces().size(), 1u);
    EXPECT_EQ(record.GetFaces()[0].effect, effect);
    const SettingsEffectFacePackage& same = record;
    record = same;
    ASSERT_EQ(record.GetFaces().size(), 1u);
    EXPECT_EQ(record.GetFaces()[0].effect, effect);
}

TEST(FacePackage, NoTwoPackagesShareAnEffect)
{
    const FacePackageSettings effect(Package({Item(FaceAt(1), Vibrance(3))}));
    const FacePackageSettings copy(effect);
    FacePackageSettings assigned;
    assigned = effect;
    const auto clone = std::dynamic_pointer_cast<const FacePackageSettings>(effect.Clone());
    FacePackageSettings receiver;
    receiver.SetEffectSettings(effect.GetEffectSettings());
    for (const FacePackageSettings* other : {&copy, clone.get(), &std::as_const(assigned), &std::as_const(receiver)})
    {
        ASSERT_TRUE(other);
        EXPECT_TRUE(*other == effect);
        ASSERT_EQ(other->GetTypedSettings().GetFaces().size(), 1u);
        EXPECT_NE(other->GetTypedSettings().GetFaces()[0].effect, effect.GetTypedSettings().GetFaces()[0].effect);
    }
}

TEST(FacePackage, AMoveKeepsTheEffects)
{
    FacePackageSettings effect(SettingsEffectFacePackage(7, {Item(FaceAt(1), Vibrance(3))}));
    effect.HelperSetting().SetMaxWidth(640);
    const auto kept = effect.GetTypedSettings().GetFaces()[0].effect;
    FacePackageSettings moved(std::move(effect));
    FacePackageSettings assigned;
    ASSERT_EQ(moved.GetTypedSettings().GetFaces().size(), 1u);
    EXPECT_EQ(moved.GetTypedSettings().GetFaces()[0].effect, kept);
    EXPECT_EQ(moved.GetTypedSettings().GetCurrentFace(), 7u);
    EXPECT_EQ(moved.GetHelperSettings().GetMaxWidth(), 640u);

    assigned = std::move(moved);
    ASSERT_EQ(assigned.GetTypedSettings().GetFaces().size(), 1u);
    EXPECT_EQ(assigned.GetTypedSettings().GetFaces()[0].effect, kept);
    EXPECT_EQ(assigned.GetTypedSettings().GetCurrentFace(), 7u);
    EXPECT_EQ(assigned.GetHelperSettings().GetMaxWidth(), 640u);
}

// All forms of the question whether `a` is like `b`.
bool IsLike(const SettingsEffectFacePackage& a, const SettingsEffectFacePackage& b)
{
    const bool isLike = a == b;
    EXPECT_EQ(a != b, !isLike);
    EXPECT_EQ(a.operator!=(b), !isLike);
    EXPECT_EQ(b.IsEqualTo(a), isLike) << "the argument stands on the left";
    EXPECT_EQ(FacePackageSettings(a) == FacePackageSettings(b), isLike);
    EXPECT_EQ(FacePackageSettings(a) != FacePackageSettings(b), !isLike);
    return isLike;
}

TEST(FacePackage, TheLeftListDecidesHowFarIsCompared)
{
    const FaceItem first = Item(FaceAt(1), Vibrance(3));
    const FaceItem second = Item(FaceAt(2), nullptr);
    const SettingsEffectFacePackage none;
    const SettingsEffectFacePackage one = Package({first});
    const SettingsEffectFacePackage both = Package({first, second});

    EXPECT_TRUE(IsLike(none, none));
    EXPECT_TRUE(IsLike(both, both));
    EXPECT_TRUE(IsLike(one, both));
    EXPECT_TRUE(IsLike(none, one));
    EXPECT_TRUE(IsLike(none, both));

    EXPECT_FALSE(IsLike(both, one)) << "the right list ends early";
    EXPECT_FALSE(IsLike(one, none)) << "the right list ends early";
    EXPECT_FALSE(IsLike(both, none)) << "the right list ends early";
}

TEST(FacePackage, ComparesIndexFacesAndEffects)
{
    const SettingsEffectFacePackage record = Package({Item(FaceAt(1), Vibrance(3)), Item(FaceAt(2), Vibrance(4))});
    EXPECT_TRUE(IsLike(record, Package({Item(FaceAt(1), Vibrance(3)), Item(FaceAt(2), Vibrance(4))})));
    EXPECT_FALSE(IsLike(record, Package({Item(FaceAt(1), Vibrance(3)), Item(FaceAt(2), Vibrance(5))})));
    EXPECT_FALSE(IsLike(record, Package({Item(FaceAt(1), Vibrance(3)), Item(FaceAt(3), Vibrance(4))})));
    EXPECT_FALSE(IsLike(record, Package({Item(FaceAt(9), Vibrance(3)), Item(FaceAt(2), Vibrance(4))})));
    EXPECT_FALSE(IsLike(record, Package({Item(FaceAt(1), nullptr), Item(FaceAt(2), Vibrance(4))})));

    SettingsEffectFacePackage other(record);
    other.SetCurrentFace(1);
    EXPECT_FALSE(IsLike(record, other));
    EXPECT_FALSE(IsLike(other, record));
    EXPECT_FALSE(IsLike(SettingsEffectFacePackage(1, {}), record));
}

TEST(FacePackage, RefusesAnotherRecord)
{
    EXPECT_THROW(SettingsEffectFacePackage().IsEqualTo(VibranceSettings().GetEffectSettings()), std::bad_cast);
}

} // namespace
