#include "Proc/EffectSettings/FacePackageSettings.h"

#include "Exception/Exception.h"
#include "effects/FacePackageSamples.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <utility>

namespace
{

using namespace FacePackageSamples;
using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::Face;
using Support::List;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

// Tells how often it was cloned, counted from the object that was read.
class CountedSettings : public VibranceSettings
{
public:
    static std::shared_ptr<IEffectSettings> CreateCounted() { return std::make_shared<CountedSettings>(); }

    std::shared_ptr<IEffectSettings> Clone() const override
    {
        const auto clone = std::make_shared<CountedSettings>(*this);
        ++clone->m_clones;
        return clone;
    }

    int m_clones = 0;
};

const char* const COUNTED_ID = "EFFECT_COUNTED_IN_FACE_PACKAGE";
[[maybe_unused]] const bool g_isCountedKnown =
    (IEffectSettings::RegisterFactory(COUNTED_ID, &CountedSettings::CreateCounted), true);

int ClonesOf(const FaceItem& item)
{
    return dynamic_cast<const CountedSettings&>(*item.effect).m_clones;
}

TEST(FacePackageTree, TheCurrentFaceIsAnyNumber)
{
    const std::pair<std::uint64_t, std::int64_t> cases[] = {
        {1, 1},
        {5000000000, 5000000000},
        {9223372036854775808u, std::numeric_limits<std::int64_t>::min()},
        {18446744073709551615u, -1},
    };
    for (const auto& [index, stored] : cases)
    {
        FacePackageSettings effect;
        effect.GetTypedSettings().SetCurrentFace(index);
        EXPECT_EQ(effect.GetTypedSettings().GetCurrentFace(), index);
        EXPECT_EQ(StoredForm(effect), Map({{"currentFaceIndex", stored}})) << index;
        const auto restored = Restored<FacePackageSettings>(Map({{"currentFaceIndex", stored}}));
        EXPECT_EQ(restored.GetTypedSettings().GetCurrentFace(), index);
    }
}

TEST(FacePackageTree, AnItemIsStoredWithoutItsDefaults)
{
    const FacePackageSettings effect(SettingsEffectFacePackage(
        1, {Item(FaceAt(1), Vibrance(3)), Item(FaceAt(2), nullptr), Item(Face(), Vibrance(0)), FaceItem()}));
    const PropertyTree stored = Map(
        {{"currentFaceIndex", 1},
         {"facesEffects", List({
                              Map({{"face", FaceFormAt(1)}, {"effect", Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 3}})}}),
                              Map({{"face", FaceFormAt(2)}}),
                              Map({{"effect", Map({{"name", "EFFECT_VIBRANCE"}})}}),
                              Map({}),
                          })}});
    EXPECT_EQ(StoredForm(effect), stored);

    const auto restored = Restored<FacePackageSettings>(stored);
    EXPECT_TRUE(restored == effect);
    EXPECT_TRUE(effect == restored);
    EXPECT_EQ(restored.GetTypedSettings().GetFaces().size(), 4u);
    EXPECT_FALSE(restored.GetTypedSettings().GetFaces()[1].effect);
    EXPECT_TRUE(restored.GetTypedSettings().GetFaces()[3].face.IsEmpty());
}

TEST(FacePackageTree, ANullTreeIsNoEffect)
{
    const auto effect = Restored<FacePackageSettings>(Map({{"facesEffects", List({Map({{"effect", PropertyTree()}})})}}));
    ASSERT_EQ(effect.GetTypedSettings().GetFaces().size(), 1u);
    EXPECT_FALSE(effect.GetTypedSettings().GetFaces()[0].effect);
}

TEST(FacePackageTree, AnEffectKeepsItsOwnSettings)
{
    const PropertyTree stored =
        Map({{"facesEffects", List({Map({{"effect", Map({{"name", "EFFECT_VIBRANCE"},
                                                         {"implName", "gpu"},
                                                         {"helperSettings", Map({{"maxWidth", 640}})}})}})})}});
    EXPECT_EQ(StoredForm(Restored<FacePackageSettings>(stored)), stored);
}

TEST(FacePackageTree, ItemsThatAreNoListStay)
{
    for (const PropertyTree& tree : {PropertyTree(5), PropertyTree("text"), PropertyTree(), Map({})})
    {
        FacePackageSettings effect(Package({Item(FaceAt(1), Vibrance(3))}));
        const auto kept = effect.GetTypedSettings().GetFaces()[0].effect;
        effect.Deserialize(Map({{"facesEffects", tree}}));
        ASSERT_EQ(effect.GetTypedSettings().GetFaces().size(), 1u) << testing::PrintToString(tree);
        EXPECT_EQ(effect.GetTypedSettings().GetFaces()[0].effect, kept);
    }
}

TEST(FacePackageTree, ReadItemsReplaceTheOldOnes)
{
    FacePackageSettings effect(Package({Item(FaceAt(1), Vibrance(3)), FaceItem()}));
    effect.Deserialize(Map({{"facesEffects", List({Map({{"face", FaceFormAt(2)}})})}}));
    ASSERT_EQ(effect.GetTypedSettings().GetFaces().size(), 1u);
    EXPECT_TRUE(effect.GetTypedSettings().GetFaces()[0] == Item(FaceAt(2), nullptr));
    effect.Deserialize(Map({}));
    EXPECT_TRUE(effect.GetTypedSettings().GetFaces().empty());
}

TEST(FacePackageTree, AnItemIsClonedOnItsWayIn)
{
    const PropertyTree item = Map({{"effect", Map({{"name", COUNTED_ID}, {"strength", 3}})}});
    const auto effect = Restored<FacePackageSettings>(Map({{"facesEffects", List({item, item, item})}}));
    ASSERT_EQ(effect.GetTypedSettings().GetFaces().size(), 3u);
    for (const FaceItem& read : effect.GetTypedSettings().GetFaces())
    {
        EXPECT_EQ(ClonesOf(read), 1);
        EXPECT_EQ(StrengthOf(read.effect), 3);
    }
    const FacePackageSettings copy(effect);
    EXPECT_EQ(ClonesOf(copy.GetTypedSettings().GetFaces()[2]), 2);
}

// The clone of a tile has the defaults of what every effect holds beside its own lists.
TEST(FacePackageTree, ATileLosesItsImplementationNameOnItsWayIn)
{
    const PropertyTree acid = Map({{"name", "EFFECT_ACID"}});
    const PropertyTree tile = Map({{"name", "effectSettingsTileStub"}, {"pre", List({acid})}});
    PropertyTree named = tile;
    named["implName"] = "other";
    const auto package = Restored<FacePackageSettings>(Map({{"facesEffects", List({Map({{"effect", named}})})}}));
    EXPECT_EQ(StoredForm(package)["facesEffects"].getList()[0], Map({{"effect", tile}}));
}

TEST(FacePackageTree, HoldsAPackage)
{
    const auto inner = std::make_shared<FacePackageSettings>(SettingsEffectFacePackage(1, {Item(FaceAt(2), Vibrance(3))}));
    const FacePackageSettings outer(SettingsEffectFacePackage(2, {Item(FaceAt(1), inner)}));
    const PropertyTree innerForm =
        Map({{"name", "SettingsEffectFacePackage"},
             {"currentFaceIndex", 1},
             {"facesEffects",
              List({Map({{"face", FaceFormAt(2)}, {"effect", Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 3}})}})})}});
    const PropertyTree stored =
        Map({{"currentFaceIndex", 2}, {"facesEffects", List({Map({{"face", FaceFormAt(1)}, {"effect", innerForm}})})}});
    EXPECT_EQ(StoredForm(outer), stored);

    const auto restored = Restored<FacePackageSettings>(stored);
    EXPECT_TRUE(restored == outer);
    EXPECT_TRUE(outer == restored);
    EXPECT_EQ(StoredForm(restored), stored);
}

// Packages in packages, built in place: a map written down would copy all of it at every level.
PropertyTree Nested(int levels, const PropertyTree& leaf)
{
    PropertyTree tree;
    PropertyTree* place = &tree;
    for (int level = 0; level < levels; ++level)
    {
        (*place)["name"] = "SettingsEffectFacePackage";
        PropertyTree& items = (*place)["facesEffects"];
        items.append(PropertyTree());
        place = &items.getList().front()["effect"];
    }
    *place = leaf;
    return tree;
}

TEST(FacePackageTree, HoldsPackagesAsDeepAsEffectsMayNest)
{
    std::shared_ptr<IEffectSettings> effect;
    EffectSettings::DeserializePtr(Nested(511, Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 3}})), effect);
    PropertyTree stored;
    EffectSettings::SerializePtr(stored, effect);
    EXPECT_TRUE(stored == Nested(511, Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 3}})));
    EXPECT_THROW(EffectSettings::DeserializePtr(Nested(512, Map({{"name", "EFFECT_VIBRANCE"}})), effect), std::length_error);
}

TEST(FacePackageTree, AnUnknownEffectEndsTheReadAndIsNamed)
{
    const PropertyTree good = Map({{"face", FaceFormAt(1)}, {"effect", Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 3}})}});
    const PropertyTree bad = Map({{"effect", Nested(2, Map({{"name", "EFFECT_OF_TOMORROW"}}))}});
    FacePackageSettings effect(Package({FaceItem(), FaceItem(), FaceItem()}));
    try
    {
        effect.Deserialize(Map({{"currentFaceIndex", 7}, {"facesEffects", List({good, bad, good})}}));
        FAIL() << "nothing was thrown";
    }
    catch (const Ombrel::Exception& exception)
    {
        const auto* text = boost::get_error_info<Ombrel::ErrorDescription>(exception);
        ASSERT_TRUE(text);
        EXPECT_EQ(*text, "Unknown Effect Setting type (EFFECT_OF_TOMORROW)!");
    }
    EXPECT_EQ(effect.GetTypedSettings().GetCurrentFace(), 7u);
    ASSERT_EQ(effect.GetTypedSettings().GetFaces().size(), 1u);
    EXPECT_TRUE(effect.GetTypedSettings().GetFaces()[0] == Item(FaceAt(1), Vibrance(3)));
}

TEST(FacePackageTree, OtherFailuresPassThroughToo)
{
    FacePackageSettings effect;
    EXPECT_THROW(effect.Deserialize(Map({{"facesEffects", List({5})}})), std::invalid_argument);
    EXPECT_THROW(effect.Deserialize(Map({{"facesEffects", List({Map({{"effect", 5}})})}})), std::invalid_argument);
    EXPECT_THROW(effect.Deserialize(Map({{"facesEffects", List({Map({{"effect", Map({})}})})}})), std::out_of_range);
    EXPECT_TRUE(effect.GetTypedSettings().GetFaces().empty());
}

// A bad face is met before the unknown effect beside it.
TEST(FacePackageTree, AFaceIsReadBeforeItsEffect)
{
    FacePackageSettings effect;
    const PropertyTree item = Map({{"effect", Map({{"name", "EFFECT_OF_TOMORROW"}})}, {"face", 5}});
    EXPECT_THROW(effect.Deserialize(Map({{"facesEffects", List({item})}})), std::invalid_argument);
}

} // namespace
