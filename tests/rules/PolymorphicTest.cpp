#include "Exception/Exception.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "Proc/Reflection/Folds.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::Exception;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;

PropertyTree StoredForm(const std::shared_ptr<const IEffectSettings>& effect)
{
    PropertyTree tree("what stood there before");
    EffectSettings::SerializePtr(tree, effect);
    return tree;
}

std::shared_ptr<IEffectSettings> Restored(const PropertyTree& tree)
{
    std::shared_ptr<IEffectSettings> effect = VibranceSettings::CreateBase();
    EffectSettings::DeserializePtr(tree, effect);
    return effect;
}

template <class Failure> std::string RefusalOf(const PropertyTree& tree, std::shared_ptr<IEffectSettings>& effect)
{
    try
    {
        EffectSettings::DeserializePtr(tree, effect);
    }
    catch (const Failure& failure)
    {
        return failure.what();
    }
    return "nothing was refused";
}

TEST(Polymorphic, NullIsANullTreeAndBack)
{
    EXPECT_TRUE(StoredForm(nullptr).isNull());
    EXPECT_FALSE(Restored(PropertyTree()));
}

TEST(Polymorphic, TheClassIdStandsBesideTheKeys)
{
    const auto effect = AcidSettings::Create({});
    EXPECT_EQ(StoredForm(effect), Map({{"name", "EFFECT_ACID"}}));
    effect->GetTypedSettings().radius = 3;
    EXPECT_EQ(StoredForm(effect), Map({{"name", "EFFECT_ACID"}, {"radius", 3}}));
}

TEST(Polymorphic, ANameAloneIsADefaultObject)
{
    const auto effect = Restored(Map({{"name", "EFFECT_ACID"}}));
    ASSERT_TRUE(dynamic_cast<AcidSettings*>(effect.get()));
    EXPECT_TRUE(*effect == AcidSettings());
}

TEST(Polymorphic, BaseMembersComeBack)
{
    const PropertyTree tree =
        Map({{"helperSettings", Map({{"applyMode", List({"ApplyStop"})}, {"maxHeight", 480}, {"undoSet", true}})},
             {"implName", "gpu"},
             {"name", "EFFECT_ACID"},
             {"sigma", 2.0}});
    const auto effect = Restored(tree);
    EXPECT_EQ(effect->GetImplName(), "gpu");
    EXPECT_EQ(effect->GetHelperSettings().GetMaxHeight(), 480u);
    EXPECT_TRUE(effect->GetHelperSettings().GetUndoSet());
    EXPECT_TRUE(effect->GetHelperSettings().HasApplyModeFlag(HelperSettings::ApplySetting::ApplyStop));
    EXPECT_EQ(StoredForm(effect), tree);
}

TEST(Polymorphic, FailuresBeforeTheNewObjectLeaveTheOldOne)
{
    std::shared_ptr<IEffectSettings> effect = VibranceSettings::CreateBase();
    const auto before = effect;
    EXPECT_EQ(RefusalOf<std::out_of_range>(Map({}), effect), "invalid map<K, T> key");
    EXPECT_EQ(RefusalOf<std::out_of_range>(Map({{"radius", 3}}), effect), "invalid map<K, T> key");
    EXPECT_EQ(RefusalOf<std::invalid_argument>(Map({{"name", 5}}), effect), "scalar: expected a string, found an integer");
    EXPECT_EQ(RefusalOf<std::invalid_argument>(Map({{"name", PropertyTree()}}), effect), "tree: expected a scalar, found null");
    EXPECT_EQ(RefusalOf<std::invalid_argument>(Map({{"name", List({})}}), effect), "tree: expected a scalar, found a list");
    EXPECT_EQ(RefusalOf<std::invalid_argument>(List({}), effect), "tree: expected a map, found a list");
    EXPECT_EQ(RefusalOf<std::invalid_argument>(PropertyTree(5), effect), "tree: expected a map, found a scalar");
    EXPECT_THROW(EffectSettings::DeserializePtr(Map({{"name", "EFFECT_NOTHING"}}), effect), Exception);
    EXPECT_EQ(effect, before);
}

TEST(Polymorphic, AFailureInTheReadLeavesTheNewObjectPartlyRead)
{
    std::shared_ptr<IEffectSettings> effect = VibranceSettings::CreateBase();
    EXPECT_THROW(EffectSettings::DeserializePtr(Map({{"name", "EFFECT_ACID"}, {"radius", 3}, {"sigma", "wide"}}), effect),
                 std::invalid_argument);
    const auto* acid = dynamic_cast<const AcidSettings*>(effect.get());
    ASSERT_TRUE(acid);
    EXPECT_EQ(acid->GetTypedSettings().radius, 3);
    EXPECT_EQ(acid->GetTypedSettings().sigma, 0.5);
}

// A record of the test's own that holds effects.
struct Package
{
    std::shared_ptr<IEffectSettings> m_effect;
    IEffectSettings::List m_list;
    IEffectSettings::ConstList m_constList;
    std::vector<IEffectSettings::List> m_cells;
};

} // namespace

namespace Ombrel::Proc
{

template <> struct Fields<Package>
{
    using List = FieldList<FieldDescriptor<&Package::m_effect>, FieldDescriptor<&Package::m_list>,
                           FieldDescriptor<&Package::m_constList>, FieldDescriptor<&Package::m_cells>>;
};

} // namespace Ombrel::Proc

namespace
{

constexpr Ombrel::Proc::ReadFlags RESET{.resetMissing = true};

PropertyTree TreeOf(const Package& package)
{
    constexpr Ombrel::Proc::WriteFlags flags{.resetTargets = false, .omitDefaults = true};
    PropertyTree tree = Map({});
    Ombrel::Proc::Reflected<Package>::Write({package, tree.getMap(), &flags});
    return tree;
}

void Read(Package& package, const PropertyTree& tree)
{
    Ombrel::Proc::Reflected<Package>::Read({package, tree.getMap(), &RESET});
}

TEST(EffectPointers, AnEmptyRecordWritesNone)
{
    EXPECT_EQ(TreeOf(Package()), Map({}));
}

TEST(EffectPointers, StandInRecordsAndListsOfAnyDepth)
{
    const PropertyTree acid = Map({{"name", "EFFECT_ACID"}, {"radius", 3}});
    const PropertyTree vibrance = Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 9}});
    const PropertyTree tree = Map({{"effect", acid},
                                   {"list", List({vibrance, PropertyTree(), acid})},
                                   {"constList", List({acid})},
                                   {"cells", List({List({}), List({acid, vibrance})})}});
    Package package;
    Read(package, tree);
    ASSERT_EQ(package.m_list.size(), 3u);
    EXPECT_EQ(package.m_list[0]->GetClassId(), "EFFECT_VIBRANCE");
    EXPECT_FALSE(package.m_list[1]);
    EXPECT_EQ(package.m_cells.size(), 2u);
    EXPECT_EQ(TreeOf(package), tree);

    Read(package, Map({}));
    EXPECT_EQ(TreeOf(package), Map({}));
}

TEST(EffectPointers, AreComparedAsPointers)
{
    Package a;
    a.m_list = {AcidSettings::CreateBase()};
    Package b = a;
    EXPECT_TRUE(Ombrel::Proc::Reflected<Package>::Equal(a, b));
    b.m_list[0] = b.m_list[0]->Clone();
    EXPECT_FALSE(Ombrel::Proc::Reflected<Package>::Equal(a, b));
}

TEST(EffectPointers, AnUnknownIdKeepsTheElementsBeforeIt)
{
    Package package;
    EXPECT_THROW(Read(package, Map({{"list", List({Map({{"name", "EFFECT_ACID"}}), Map({{"name", "EFFECT_NOTHING"}})})}})),
                 Exception);
    EXPECT_EQ(package.m_list.size(), 1u);
}

} // namespace
