#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "support/AllClasses.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <concepts>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <utility>

// Rules of construction, copying and moving over all classes and records.
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;
using Support::ForEach;
using Support::List;
using Support::Map;
using Support::Records;
using Support::SettingsClasses;
using Support::StoredForm;

// The lists are read out of the headers: neither is one class short.
TEST(Lists, HoldEveryClassAndItsRecord)
{
    std::set<std::string> ids;
    ForEach<SettingsClasses>([&ids]<class Class>() { ids.insert(Class().GetClassId()); });
    std::set<std::string> recordIds{EffectSettingsSimple().GetClassId()}; // it has no record of its own
    ForEach<Records>([&recordIds]<class Record>() { recordIds.insert(Record::CLASS_NAME); });
    for (const EffectClass& effectClass : EffectClasses())
    {
        EXPECT_TRUE(ids.contains(effectClass.classId)) << effectClass.className;
        EXPECT_TRUE(recordIds.contains(effectClass.create()->GetEffectSettings().GetClassId())) << effectClass.className;
    }
    EXPECT_EQ(ids.size(), EffectClasses().size());
}

// `Class object{};` and `return {};` compile.
template <class Class> Class MakeByBraces()
{
    Class object{};
    object = {};
    return {};
}

TEST(Construction, OfEverySettingsClassByBraces)
{
    ForEach<SettingsClasses>([]<class Class>() { EXPECT_EQ(MakeByBraces<Class>().GetClassId(), Class().GetClassId()); });
}

TEST(Construction, OfEveryRecordByBracesButBlurAndNoise)
{
    ForEach<Records>(
        []<class Record>()
        {
            if constexpr (std::same_as<Record, Proc::SettingsEffectBlur> ||
                          std::same_as<Record, Proc::SettingsEffectNoiseVideo>)
            {
                static_assert(!std::is_default_constructible_v<Record>);
            }
            else
            {
                EXPECT_EQ(MakeByBraces<Record>().GetClassId(), Record::CLASS_NAME);
            }
        });
}

TEST(Construction, TakesAllValuesOrNone)
{
    using Proc::SettingsEffectGuidedFilter;
    using Proc::SettingsEffectReduceLocalLuma;
    static_assert(!std::is_constructible_v<SettingsEffectGuidedFilter, double>);
    static_assert(!std::is_constructible_v<SettingsEffectGuidedFilter, int, int>);
    static_assert(!std::is_constructible_v<SettingsEffectReduceLocalLuma, double>);
    static_assert(!std::is_constructible_v<SettingsEffectReduceLocalLuma, int, int, int, int>);

    const SettingsEffectReduceLocalLuma luma(1, 2, 3, 4, 0.25);
    EXPECT_EQ(luma.m_x + 10 * luma.m_y + 100 * luma.m_width + 1000 * luma.m_height, 4321);
    EXPECT_EQ(luma.m_strength, 0.25);
    EXPECT_EQ(SettingsEffectReduceLocalLuma().m_strength, 1.0);
}

TEST(Moves, OfEveryClassThrowNothing)
{
    const auto check = []<class Class>()
    {
        static_assert(std::is_nothrow_move_constructible_v<Class>);
        static_assert(std::is_nothrow_move_assignable_v<Class>);
        static_assert(std::is_copy_constructible_v<Class> && std::is_copy_assignable_v<Class>);
        static_assert(std::is_nothrow_destructible_v<Class>);
    };
    ForEach<SettingsClasses>(check);
    ForEach<Records>(check);
}

TEST(Moves, LeaveAnEffectThatStoresNoImplementationName)
{
    ForEach<SettingsClasses>(
        []<class Class>()
        {
            Class effect;
            effect.Deserialize(Map({{"implName", "an implementation with a long name"}}));
            Class moved(std::move(effect));
            EXPECT_FALSE(StoredForm(effect).contains("implName")) << moved.GetClassId();
            EXPECT_EQ(StoredForm(moved)["implName"], "an implementation with a long name") << moved.GetClassId();
            effect = std::move(moved);
            EXPECT_FALSE(StoredForm(moved).contains("implName")) << effect.GetClassId();
            EXPECT_EQ(StoredForm(effect)["implName"], "an implementation with a long name") << effect.GetClassId();
        });
}

TEST(Moves, TakeFacesInsteadOfCopyingThem)
{
    FaceDetectionSettings source;
    source.GetTypedSettings().m_faces.resize(3);
    const Proc::Face* const faces = source.GetTypedSettings().m_faces.data();
    const FaceDetectionSettings target(std::move(source));
    EXPECT_EQ(target.GetTypedSettings().m_faces.data(), faces);
}

template <class Class> void ExpectSelfMoveToKeep(Class& effect)
{
    const PropertyTree before = StoredForm(effect);
    Class& same = effect; // or the compiler would warn
    effect = std::move(same);
    EXPECT_EQ(StoredForm(effect), before) << effect.GetClassId();
}

TEST(Moves, OfAPackageToItselfChangeNothing)
{
    const PropertyTree acid = Map({{"name", "EFFECT_ACID"}, {"radius", 3}});
    const PropertyTree base = Map({{"applyMode", List({"ApplyStop"})}});

    FacePackageSettings faces;
    faces.Deserialize(Map({{"implName", "gpu"},
                           {"helperSettings", base},
                           {"currentFaceIndex", 1},
                           {"facesEffects", List({Map({{"effect", acid}}), Map({{"effect", acid}})})}}));
    ExpectSelfMoveToKeep(faces);
    EXPECT_EQ(faces.GetTypedSettings().GetFaces().size(), 2u);

    EffectsPackageWithBrushSettings brush;
    brush.Deserialize(Map({{"implName", "gpu"},
                           {"helperSettings", base},
                           {"foregroundEffects", List({acid})},
                           {"backgroundEffects", List({acid, acid})}}));
    ExpectSelfMoveToKeep(brush);
    EXPECT_EQ(brush.GetTypedSettings().GetBackgroundEffects().size(), 2u);

    TileSettings tile;
    tile.Deserialize(Map({{"implName", "gpu"},
                          {"helperSettings", base},
                          {"pre", List({acid})},
                          {"post", List({acid})},
                          {"effectRows", List({Map({{"cols", List({List({acid})})}})})}}));
    ExpectSelfMoveToKeep(tile);
    EXPECT_EQ(tile.GetWidth(), 1u);
}

TEST(Moves, OfATileTakeEverything)
{
    TileSettings tile(2, 1);
    tile.Deserialize(Map({{"implName", "gpu"}, {"pre", List({Map({{"name", "EFFECT_ACID"}})})}}));
    const IEffectSettings* const effect = tile.Pre().front().get();
    TileSettings moved(std::move(tile));
    EXPECT_EQ(moved.GetImplName(), "gpu");
    EXPECT_EQ(moved.Pre().front().get(), effect);
    TileSettings target;
    target = std::move(moved);
    EXPECT_EQ(target.GetImplName(), "gpu");
    EXPECT_EQ(target.Pre().front().get(), effect);
}

} // namespace
