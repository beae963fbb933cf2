#include "Exception/Exception.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/EmptySettings.h"
#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "hostile/UserEffects.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <typeinfo>
#include <utility>

// An effect of a caller's own class may lie about its class id, clone nothing, throw anywhere or write what is no map. The
// library's own objects that hold it stay whole.
namespace
{

using namespace Ombrel::PhotoCore;
using namespace UserEffects;
using Ombrel::Exception;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectAcid;
using Support::List;
using Support::Map;

using EffectPtr = std::shared_ptr<IEffectSettings>;
using FaceItem = SettingsEffectFacePackage::FaceItem;

// Says it is an acid, in both of its class ids, and is none.
EffectPtr Impostor()
{
    return Make({.classId = "EFFECT_ACID"});
}

SettingsEffectFacePackage Faces(const EffectPtr& effect)
{
    std::vector<FaceItem> faces(1);
    faces[0].effect = effect;
    return {0, std::move(faces)};
}

std::shared_ptr<TileSettings> Tile(const EffectPtr& effect)
{
    const auto tile = TileSettings::Create(1, 1);
    tile->Pre() = {effect};
    tile->Effect(0, 0) = {effect};
    return tile;
}

SettingsEffectMaskBlender Brush(const EffectPtr& effect)
{
    SettingsEffectMaskBlender record;
    record.SetForegroundEffects({effect});
    record.SetBackgroundEffects({effect});
    return record;
}

PropertyTree NamedForm(const EffectPtr& effect)
{
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    return tree;
}

TEST(UserClasses, AForeignClassIdMeetsNoForeignObject)
{
    AcidSettings acid;
    acid.GetTypedSettings().radius = 3;
    const EffectPtr impostor = Impostor();
    EXPECT_THROW(static_cast<void>(acid == *impostor), std::bad_cast);
    EXPECT_THROW(acid.Add(*impostor), std::bad_cast);
    EXPECT_THROW(IEffectSettings::Equals(std::make_shared<AcidSettings>(), impostor), std::bad_cast);
    EXPECT_FALSE(VibranceSettings() == *impostor);
    EXPECT_EQ(acid.GetTypedSettings().radius, 3);

    acid.SetEffectSettings(impostor->GetEffectSettings()); // the record is what it says
    EXPECT_EQ(acid.GetTypedSettings().radius, 0);
}

// Whatever the type on the right, the comparison is that of the effect on the left.
TEST(UserClasses, TheLeftEffectAnswers)
{
    const EffectPtr user = Make({.isEqual = [] { return true; }});
    const IEffectSettings& left = *user;
    EXPECT_TRUE(left == AcidSettings());
    EXPECT_TRUE(left == EffectSettingsSimple());
    EXPECT_TRUE(left == EmptySettings());
    EXPECT_TRUE(left == ResizeSettings());
    EXPECT_TRUE(left == TileSettings());
    EXPECT_FALSE(left != TileSettings());
    EXPECT_FALSE(TileSettings() == left);
}

// A record that lies in the same way.
class ForeignRecord : public Ombrel::Proc::Settings
{
public:
    const std::string& GetClassId() const override { return SettingsEffectAcid::CLASS_ID; }
    Settings* Clone() const override { return new ForeignRecord(*this); }
    bool IsEqualTo(const Settings&) const override { return true; }
    bool IsEmpty() const override { return true; }
};

TEST(UserClasses, AForeignRecordIsRefused)
{
    AcidSettings acid;
    acid.GetTypedSettings().radius = 3;
    EXPECT_THROW(acid.SetEffectSettings(ForeignRecord()), std::bad_cast);
    EXPECT_THROW(acid.GetEffectSettings().IsEqualTo(ForeignRecord()), std::bad_cast);
    EXPECT_EQ(acid.GetTypedSettings().radius, 3);
}

TEST(UserClasses, AForeignClassIdIsReadBackAsWhatItNames)
{
    const EffectPtr impostor = Make({.classId = "EFFECT_ACID", .serialize = [](PropertyTree& tree) { tree["sigma"] = 2.0; }});
    const PropertyTree tree = NamedForm(impostor);
    EXPECT_EQ(tree, Map({{"name", "EFFECT_ACID"}, {"sigma", 2.0}}));
    EffectPtr restored;
    EffectSettings::DeserializePtr(tree, restored);
    const IEffectSettings& object = *restored;
    ASSERT_EQ(typeid(object), typeid(AcidSettings));
    EXPECT_EQ(dynamic_cast<const AcidSettings&>(object).GetTypedSettings().sigma, 2.0);
}

TEST(UserClasses, AForeignClassIdInsideAList)
{
    const EffectPtr acid = AcidSettings::CreateBase();
    EXPECT_THROW(static_cast<void>(*Tile(acid) == *Tile(Impostor())), std::bad_cast);
    EXPECT_THROW(static_cast<void>(Faces(acid) == Faces(Impostor())), std::bad_cast);
    EXPECT_THROW(static_cast<void>(Brush(acid) == Brush(Impostor())), std::bad_cast);
    EXPECT_THROW(IEffectSettings::Equal({acid}, {Impostor()}), std::bad_cast);

    const EffectPtr impostor = Impostor();
    EXPECT_EQ(IEffectSettings::Find(IEffectSettings::List{impostor, acid}, "EFFECT_ACID"), impostor);
    SettingsEffectMaskBlender brush = Brush(impostor);
    brush.SetForegroundEffect(acid);
    EXPECT_EQ(brush.GetForegroundEffects(), IEffectSettings::ConstList{acid});
    EXPECT_TRUE(brush.EraseBackgroundEffect("EFFECT_ACID"));
    EXPECT_TRUE(brush.GetBackgroundEffects().empty());
}

// The class id belongs to the effect that goes.
TEST(UserClasses, IsErasedByItsOwnClassId)
{
    struct OwnIdRecord : ForeignRecord
    {
        const std::string& GetClassId() const override { return m_classId; }
        std::string m_classId = std::string(100, 'x');
    };
    SettingsEffectMaskBlender brush;
    brush.SetForegroundEffects({AcidSettings::CreateBase(), Make({.record = std::make_shared<OwnIdRecord>()})});
    EXPECT_TRUE(brush.EraseForegroundEffect(brush.GetForegroundEffects()[1]->GetEffectSettings().GetClassId()));
    EXPECT_EQ(brush.GetForegroundEffects().size(), 1u);
}

TEST(UserClasses, AnyClassIdIsStoredAsItIs)
{
    for (const std::string& id : {std::string(), std::string("a\0b", 3), std::string("\xFF\xFE"), std::string(1 << 20, 'x')})
    {
        const PropertyTree tree = NamedForm(Make({.classId = id}));
        EXPECT_EQ(tree["name"].getScalar().toString(), id);
        EffectPtr effect;
        EXPECT_THROW(EffectSettings::DeserializePtr(tree, effect), Exception);
        EXPECT_FALSE(effect);
    }
}

TEST(UserClasses, AnEffectThatClonesNothingIsCopiedAsNone)
{
    const EffectPtr effect = Make({.clone = [](const UserEffect&) { return nullptr; }});
    const PropertyTree nothing = List({PropertyTree()});
    EXPECT_EQ(
        NamedForm(Tile(effect)->Clone()),
        Map({{"effectRows", List({Map({{"cols", List({nothing})}})})}, {"name", "effectSettingsTileStub"}, {"pre", nothing}}));
    EXPECT_FALSE(FaceItem(Faces(effect).GetFaces()[0]).effect);

    IEffectSettings::RegisterFactory("clonesNothing", [effect] { return effect; });
    FacePackageSettings faces;
    faces.Deserialize(Map({{"facesEffects", List({Map({{"effect", Map({{"name", "clonesNothing"}})}})})}}));
    ASSERT_EQ(faces.GetTypedSettings().GetFaces().size(), 1u);
    EXPECT_FALSE(faces.GetTypedSettings().GetFaces()[0].effect); // cloned on its way in
    EXPECT_EQ(NamedForm(faces.Clone()), Map({{"facesEffects", List({Map({})})}, {"name", "SettingsEffectFacePackage"}}));
}

// Throws at a clone after `successes` of them.
EffectPtr FailingAfter(int successes)
{
    return Make({.clone = [left = std::make_shared<int>(successes)](const UserEffect& effect) -> EffectPtr
                 {
                     if ((*left)-- == 0)
                     {
                         throw std::runtime_error("no clone today");
                     }
                     return std::make_shared<UserEffect>(effect);
                 }});
}

TEST(UserClasses, AFailingCloneLeavesTheReceiver)
{
    for (const int successes : {0, 1})
    {
        SCOPED_TRACE(successes);
        const auto tile = Tile(VibranceSettings::CreateBase());
        const PropertyTree tileForm = NamedForm(tile);
        EXPECT_THROW(*tile = *Tile(FailingAfter(successes)), std::runtime_error);
        EXPECT_EQ(NamedForm(tile), tileForm);

        const auto faces = FacePackageSettings::Create(Faces(VibranceSettings::CreateBase()));
        const PropertyTree facesForm = NamedForm(faces);
        std::vector<FaceItem> items(2);
        items[0].effect = items[1].effect = FailingAfter(successes);
        SettingsEffectFacePackage failing(3, std::move(items));
        EXPECT_THROW(faces->GetTypedSettings() = failing, std::runtime_error);
        EXPECT_EQ(NamedForm(faces), facesForm);
    }
    FaceItem item = Faces(VibranceSettings::CreateBase()).GetFaces()[0];
    const SettingsEffectFacePackage failing = Faces(FailingAfter(0));
    EXPECT_THROW(item = failing.GetFaces()[0], std::runtime_error);
    EXPECT_EQ(NamedForm(item.effect), Map({{"name", "EFFECT_VIBRANCE"}}));
}

TEST(UserClasses, AFailingWriteOrComparisonPassesThrough)
{
    const EffectPtr failing = Make({.serialize = [](PropertyTree&) { throw std::runtime_error("not written"); },
                                    .isEqual = []() -> bool { throw std::runtime_error("not compared"); }});
    const EffectPtr other = FailingAfter(1);
    for (const EffectPtr& holder :
         {EffectPtr(Tile(failing)), EffectPtr(std::make_shared<EffectsPackageWithBrushSettings>(Brush(failing))),
          EffectPtr(FacePackageSettings::Create(Faces(failing)))})
    {
        EXPECT_THROW(NamedForm(holder), std::runtime_error) << holder->GetClassId();
    }
    EXPECT_THROW(static_cast<void>(*Tile(failing) == *Tile(other)), std::runtime_error);
    EXPECT_THROW(static_cast<void>(Faces(failing) == Faces(other)), std::runtime_error);
    EXPECT_THROW(static_cast<void>(Brush(failing) == Brush(other)), std::runtime_error);
}

TEST(UserClasses, AFailingReadLeavesTheNewEffect)
{
    const EffectPtr failing = Make({.deserialize = [](const PropertyTree&) { throw std::runtime_error("not read"); }});
    IEffectSettings::RegisterFactory("failsToRead", [failing] { return failing; });
    EffectPtr effect = VibranceSettings::CreateBase();
    EXPECT_THROW(EffectSettings::DeserializePtr(Map({{"name", "failsToRead"}}), effect), std::runtime_error);
    EXPECT_EQ(effect, failing);
}

TEST(UserClasses, WhatIsWrittenAsNoMapHasNoRoomForAName)
{
    for (const PropertyTree& written : {List({1}), PropertyTree(5)})
    {
        const EffectPtr effect = Make({.serialize = [written](PropertyTree& tree) { tree = written; }});
        EXPECT_THROW(NamedForm(effect), std::invalid_argument);
        EXPECT_THROW(NamedForm(Tile(effect)), std::invalid_argument);
    }
    EXPECT_EQ(NamedForm(Make({.serialize = [](PropertyTree& tree) { tree = PropertyTree(); }})), Map({{"name", "userEffect"}}));
}

TEST(UserClasses, TheNameFindsItsPlaceInWhateverIsWritten)
{
    const auto named = [](auto serialize) { return NamedForm(Make({.serialize = serialize})); };
    EXPECT_EQ(named([](PropertyTree& tree) { tree["name"] = "another"; }), Map({{"name", "userEffect"}}));
    EXPECT_EQ(named([](PropertyTree& tree) { tree.makeMap(1)["radius"] = 1; }), Map({{"name", "userEffect"}, {"radius", 1}}));
    const auto outOfOrder = [](PropertyTree& tree)
    {
        tree["radius"] = 1;
        tree["blur"] = 2;
    };
    EXPECT_EQ(named(outOfOrder), Map({{"blur", 2}, {"name", "userEffect"}, {"radius", 1}}));
    const auto withGap = [](PropertyTree& tree)
    {
        for (const char* key : {"blur", "radius", "sigma"})
        {
            tree[key] = 3;
        }
        tree.getMap().erase("radius"); // where the name would move it
    };
    EXPECT_EQ(named(withGap), Map({{"blur", 3}, {"name", "userEffect"}, {"sigma", 3}}));
}

// Keeps what stands in the tree.
class Adding : public UserEffect
{
public:
    using UserEffect::UserEffect;

    void Serialize(PropertyTree& tree) const override { tree["sigma"] = 2; }
};

TEST(UserClasses, WhatStoodInTheTreeIsNotMovedForTheName)
{
    PropertyTree tree;
    PropertyTree& radius = tree.makeMap(4)["radius"];
    EffectSettings::SerializePtr(tree, std::make_shared<Adding>(UserEffect::Behaviour()));
    EXPECT_EQ(tree, Map({{"name", "userEffect"}, {"radius", PropertyTree()}, {"sigma", 2}}));
    EXPECT_EQ(&radius, &tree["radius"]);
}

} // namespace
