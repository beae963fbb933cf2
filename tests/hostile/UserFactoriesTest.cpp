#include "Exception/Exception.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "hostile/UserEffects.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <new>
#include <ostream>
#include <stdexcept>
#include <string>

// A factory is code of whoever registered it: it may throw, make nothing, or use the registry while the registry runs it. What
// a stored tree names then fails as a failing read does, and never as a crash.
namespace
{

using namespace Ombrel::PhotoCore;
using namespace UserEffects;
using Ombrel::Exception;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;

using EffectPtr = std::shared_ptr<IEffectSettings>;
using Factory = IEffectSettings::Factory;

// Registers a factory under an id of its own, since what is registered stays.
std::string Registered(Factory factory)
{
    static int s_count = 0;
    const std::string id = "userFactory" + std::to_string(++s_count);
    IEffectSettings::RegisterFactory(id, std::move(factory));
    return id;
}

PropertyTree Named(const std::string& id)
{
    return Map({{"name", PropertyTree(id)}});
}

EffectPtr Read(const PropertyTree& tree)
{
    EffectPtr effect;
    EffectSettings::DeserializePtr(tree, effect);
    return effect;
}

template <class Failure, class Work> std::string TextOf(Work work)
{
    try
    {
        work();
    }
    catch (const Failure& failure)
    {
        return failure.what();
    }
    return "nothing was thrown";
}

// A list of effects, and what its holder is stored as.
struct Place
{
    const char* name;
    PropertyTree (*form)(const PropertyTree& effects);
};

void PrintTo(const Place& place, std::ostream* out)
{
    *out << place.name;
}

PropertyTree FacesForm(const PropertyTree& effects)
{
    PropertyTree items = List({});
    for (const PropertyTree& effect : effects.getList())
    {
        items.append(Map({{"effect", effect}}));
    }
    return Map({{"facesEffects", items}, {"name", "SettingsEffectFacePackage"}});
}

const Place PLACES[] = {
    {"Pre",
     [](const PropertyTree& effects) {
         return Map({{"name", "effectSettingsTileStub"}, {"pre", effects}});
     }},
    {"Post",
     [](const PropertyTree& effects) {
         return Map({{"name", "effectSettingsTileStub"}, {"post", effects}});
     }},
    {"Foreground",
     [](const PropertyTree& effects) {
         return Map({{"foregroundEffects", effects}, {"name", "EffectsPackageOneInputWithBrush"}});
     }},
    {"Background",
     [](const PropertyTree& effects) {
         return Map({{"backgroundEffects", effects}, {"name", "EffectsPackageOneInputWithBrush"}});
     }},
    {"Face", &FacesForm},
};

class UserFactoriesTest : public testing::TestWithParam<Place>
{
protected:
    // Reads three effects, of which the second cannot be made.
    template <class Failure> static void ExpectTheFirstAlone(const std::string& id)
    {
        const PropertyTree acid = Named("EFFECT_ACID");
        EffectPtr effect;
        EXPECT_THROW(EffectSettings::DeserializePtr(GetParam().form(List({acid, Named(id), acid})), effect), Failure);
        PropertyTree tree;
        EffectSettings::SerializePtr(tree, effect);
        EXPECT_EQ(tree, GetParam().form(List({acid})));
    }
};

TEST_P(UserFactoriesTest, AListStopsWhereOneThrows)
{
    ExpectTheFirstAlone<std::runtime_error>(Registered([]() -> EffectPtr { throw std::runtime_error("no effect today"); }));
}

TEST_P(UserFactoriesTest, AListStopsWhereOneMakesNothing)
{
    ExpectTheFirstAlone<std::logic_error>(Registered([]() -> EffectPtr { return nullptr; }));
}

INSTANTIATE_TEST_SUITE_P(Lists, UserFactoriesTest, testing::ValuesIn(PLACES),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(UserFactories, WhatOneThrowsPassesThrough)
{
    const std::string failing = Registered([]() -> EffectPtr { throw std::runtime_error("no effect today"); });
    const std::string withoutMemory = Registered([]() -> EffectPtr { throw std::bad_alloc(); });
    const std::string withANumber = Registered([]() -> EffectPtr { throw 5; });
    const std::string withOurs = Registered([] { return IEffectSettings::CreateEffectSettings("EFFECT_NOTHING"); });
    const EffectPtr before = VibranceSettings::CreateBase();
    EffectPtr effect = before;
    for (int round = 0; round < 2; ++round)
    {
        EXPECT_EQ(TextOf<std::runtime_error>([&] { IEffectSettings::CreateEffectSettings(failing); }), "no effect today");
        EXPECT_EQ(TextOf<std::runtime_error>([&] { EffectSettings::DeserializePtr(Named(failing), effect); }),
                  "no effect today");
        EXPECT_THROW(EffectSettings::DeserializePtr(Named(withoutMemory), effect), std::bad_alloc);
        EXPECT_THROW(EffectSettings::DeserializePtr(Named(withANumber), effect), int);
        EXPECT_THROW(EffectSettings::DeserializePtr(Named(withOurs), effect), Exception);
        EXPECT_EQ(effect, before);
    }
}

TEST(UserFactories, OneThatMakesNothingIsNamed)
{
    const std::string id = Registered([]() -> EffectPtr { return nullptr; });
    EXPECT_FALSE(IEffectSettings::CreateEffectSettings(id));
    const EffectPtr before = VibranceSettings::CreateBase();
    EffectPtr effect = before;
    EXPECT_EQ(TextOf<std::logic_error>([&] { EffectSettings::DeserializePtr(Named(id), effect); }),
              "the factory of " + id + " made no effect");
    EXPECT_EQ(effect, before);
}

TEST(UserFactories, OneThatWasEmptyIsNoEffect)
{
    const std::string id = Registered(Factory());
    EffectPtr effect;
    EXPECT_THROW(EffectSettings::DeserializePtr(Named(id), effect), std::bad_function_call);
    EXPECT_FALSE(effect);
}

TEST(UserFactories, AFailureLeavesNoLevelCounted)
{
    const std::string failing = Registered([]() -> EffectPtr { throw std::runtime_error("no effect today"); });
    const std::string nothing = Registered([]() -> EffectPtr { return nullptr; });
    EffectPtr effect;
    for (int i = 0; i < 600; ++i)
    {
        EXPECT_THROW(EffectSettings::DeserializePtr(Named(failing), effect), std::runtime_error);
        EXPECT_THROW(EffectSettings::DeserializePtr(Named(nothing), effect), std::logic_error);
    }
    EXPECT_EQ(Read(Named("EFFECT_ACID"))->GetClassId(), "EFFECT_ACID");
}

TEST(UserFactories, OneMayMakeAnEffectByAnotherId)
{
    const std::string id = Registered([] { return IEffectSettings::CreateEffectSettings("EFFECT_ACID"); });
    EXPECT_EQ(Read(Named(id))->GetClassId(), "EFFECT_ACID");
}

TEST(UserFactories, OneMayRegisterAnother)
{
    static std::string s_registered;
    const std::string id = Registered(
        []() -> EffectPtr
        {
            const std::string large(100, 'x');
            s_registered = Registered([large] { return Make({.classId = large}); });
            for (int i = 0; i < 100; ++i)
            {
                Registered(&AcidSettings::CreateBase);
            }
            return AcidSettings::CreateBase();
        });
    EXPECT_EQ(Read(Named(id))->GetClassId(), "EFFECT_ACID");
    EXPECT_EQ(Read(Named(s_registered))->GetClassId(), std::string(100, 'x'));
}

TEST(UserFactories, OneMayNotRegisterItself)
{
    static std::string s_id;
    s_id = Registered(
        []() -> EffectPtr
        {
            IEffectSettings::RegisterFactory(s_id, &AcidSettings::CreateBase);
            return nullptr;
        });
    EffectPtr effect;
    for (int round = 0; round < 2; ++round)
    {
        EXPECT_THROW(EffectSettings::DeserializePtr(Named(s_id), effect), Exception);
        EXPECT_FALSE(effect);
    }
}

// A factory that reads a tree of its own name would go on for ever.
TEST(UserFactories, OneThatReadsItsOwnNameEnds)
{
    static int s_calls = 0;
    static std::string s_id;
    s_id = Registered(
        []
        {
            ++s_calls;
            return Read(Named(s_id));
        });
    EffectPtr effect;
    EXPECT_THROW(EffectSettings::DeserializePtr(Named(s_id), effect), std::length_error);
    EXPECT_EQ(s_calls, 512);
    EXPECT_FALSE(effect);
}

TEST(UserFactories, OneMayMakeTheSameObjectAgain)
{
    const EffectPtr shared = AcidSettings::CreateBase();
    const std::string id = Registered([shared] { return shared; });
    PropertyTree tree = Named(id);
    tree["radius"] = 3;
    EXPECT_EQ(Read(tree), shared);
    EXPECT_EQ(Read(Named(id)), shared);
    const EffectPtr tile = Read(PLACES[0].form(List({tree, Named(id)})));
    EXPECT_EQ(dynamic_cast<const TileSettings&>(*tile).Pre(), (IEffectSettings::List{shared, shared}));
}

} // namespace
