#include "Module.h"
#include "Plugin.h"

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

// Host and plugin are both linked to the library and see nothing of each other. What one of the three throws or makes must be
// what it is in the two others, or failures are caught by nobody and casts fail.
namespace Borders
{

void PrintTo(const Failure& failure, std::ostream* out)
{
    *out << failure.type << " \"" << failure.text << "\" with call stack \"" << failure.callStack << "\" at " << failure.file
         << ", " << failure.function << ", " << failure.line;
}

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::EffectSettings;
using Ombrel::PhotoCore::VibranceSettings;

const Failure UNKNOWN{"wrapexcept<Exception>",
                      "Unknown Effect Setting type (EFFECT_NOTHING)!",
                      "",
                      "Proc/EffectSettings/EffectSettingsExport",
                      "CreateEffectSettings",
                      208};
const Failure RAISED{"wrapexcept<Exception>", "text", "the plugin's stack", "Plugin/File", "PluginFunction", 34};
const Failure BAD_CAST{"bad_cast", ""};

class BorderTest : public testing::Test
{
protected:
    Module module{BORDERS_PLUGIN};
    const Plugin& plugin = *module.Get<const Plugin*()>("BordersPlugin")();
};

TEST_F(BorderTest, WhatTheLibraryThrowsIsCaughtOnBothSides)
{
    EXPECT_EQ(plugin.failureOf([] { IEffectSettings::CreateEffectSettings("EFFECT_NOTHING"); }), UNKNOWN);
    EXPECT_EQ(FailureOf([this] { plugin.create("EFFECT_NOTHING"); }), UNKNOWN);

    const Failure missing{"out_of_range", "invalid map<K, T> key"};
    PropertyTree tree;
    tree.convertToMap();
    EXPECT_EQ(plugin.failureOf([&] { std::as_const(tree)["radius"]; }), missing);
}

TEST_F(BorderTest, WhatThePluginThrowsIsCaughtInTheHost)
{
    EXPECT_EQ(FailureOf([this] { plugin.raise("text"); }), RAISED);
    EXPECT_THROW(plugin.raise("text"), std::exception);
    EXPECT_THROW(plugin.raise("text"), boost::exception);
}

TEST_F(BorderTest, WhatTheHostThrowsIsCaughtInThePlugin)
{
    const auto raise = []
    {
        Ombrel::Exception failure;
        failure << Ombrel::ErrorDescription("by the host") << Ombrel::ErrorCallStack("the host's stack");
        boost::throw_exception(failure, Ombrel::ThrowLocation{"Host/File", 12, "HostFunction", 3});
    };
    EXPECT_EQ(plugin.failureOf(raise),
              (Failure{"wrapexcept<Exception>", "by the host", "the host's stack", "Host/File", "HostFunction", 12}));
}

TEST_F(BorderTest, WhatOnePluginThrowsIsCaughtInAnother)
{
    const Module otherModule(BORDERS_OTHER_PLUGIN);
    const Plugin& other = *otherModule.Get<const Plugin*()>("BordersPlugin")();
    ASSERT_NE(&plugin, &other);
    EXPECT_EQ(other.failureOf([this] { plugin.raise("text"); }), RAISED);
    EXPECT_EQ(plugin.failureOf([&] { other.create("EFFECT_NOTHING"); }), UNKNOWN);
}

TEST_F(BorderTest, EffectsAreOfTheirClassOnBothSides)
{
    VibranceSettings vibrance;
    vibrance.GetTypedSettings().m_strength = 40;
    EXPECT_EQ(plugin.strengthOf(vibrance), 40);

    const auto made = plugin.create("EFFECT_VIBRANCE");
    EXPECT_TRUE(dynamic_cast<VibranceSettings*>(made.get()));
    EXPECT_TRUE(dynamic_cast<Ombrel::Proc::SettingsEffectVibrance*>(&made->GetEffectSettingsRef()));
    made->SetEffectSettings(vibrance.GetEffectSettings());
    EXPECT_TRUE(*made == vibrance);
    EXPECT_EQ(&plugin.vibranceId(), &Ombrel::Proc::SettingsEffectVibrance::CLASS_ID);

    const auto frame = plugin.makeFrame(7);
    EXPECT_TRUE(dynamic_cast<EffectSettings*>(frame.get()));
    EXPECT_FALSE(dynamic_cast<VibranceSettings*>(frame.get()));
    EXPECT_EQ(frame->GetPropertyAccess()->GetProperty("width"), PropertyTree(7));
    EXPECT_EQ(plugin.widthOf(*frame->Clone()), 7);
    EXPECT_EQ(FailureOf([&] { plugin.widthOf(*made); }), BAD_CAST);
    EXPECT_EQ(plugin.failureOf([&] { plugin.strengthOf(*frame); }), BAD_CAST);
}

// Other class ids are unequal; the same class id of another class is a bad cast, from wherever it comes.
TEST_F(BorderTest, ComparisonKeepsItsRules)
{
    const VibranceSettings vibrance;
    const auto frame = plugin.makeFrame(7);
    EXPECT_FALSE(vibrance == *frame);
    EXPECT_FALSE(*frame == vibrance);

    const auto impostor = plugin.makeImpostor();
    EXPECT_EQ(impostor->GetClassId(), "EFFECT_VIBRANCE");
    EXPECT_EQ(FailureOf([&] { EXPECT_TRUE(vibrance == *impostor); }), BAD_CAST);
    EXPECT_EQ(FailureOf([&] { EXPECT_TRUE(*impostor == vibrance); }), BAD_CAST);
    EXPECT_EQ(plugin.failureOf([&] { EXPECT_TRUE(*impostor == vibrance); }), BAD_CAST);
}

TEST_F(BorderTest, AForeignRecordOrEffectIsABadCast)
{
    VibranceSettings vibrance;
    for (const auto& other : {plugin.makeFrame(7), plugin.makeImpostor()})
    {
        EXPECT_EQ(FailureOf([&] { vibrance.SetEffectSettings(other->GetEffectSettings()); }), BAD_CAST);
        EXPECT_EQ(FailureOf([&] { other->SetEffectSettings(vibrance.GetEffectSettings()); }), BAD_CAST);
        EXPECT_EQ(plugin.failureOf([&] { std::as_const(*other).GetEffectSettings().IsEqualTo(vibrance.GetEffectSettings()); }),
                  BAD_CAST);
        EXPECT_EQ(FailureOf([&] { static_cast<IEffectSettings&>(vibrance).Add(*other); }), BAD_CAST);
        EXPECT_EQ(FailureOf([&] { other->Add(vibrance); }), BAD_CAST);
    }
}

// The registry cannot forget, so the plugin stays until the program ends, after which the library destroys the factory.
TEST(BorderRegistration, TheHostMakesAClassOfThePlugin)
{
    static const Module& module = *new Module(BORDERS_OTHER_PLUGIN);
    const Plugin& plugin = *module.Get<const Plugin*()>("BordersPlugin")();
    plugin.registerFrame();

    PropertyTree tree;
    EffectSettings::SerializePtr(tree, plugin.makeFrame(12));
    std::shared_ptr<IEffectSettings> frame;
    EffectSettings::DeserializePtr(tree, frame);
    EXPECT_EQ(plugin.widthOf(*frame), 12);
    EXPECT_TRUE(*frame == *plugin.makeFrame(12));

    const Failure duplicate{"wrapexcept<Exception>",
                            "Duplicate class id (EFFECT_FRAME)!",
                            "",
                            "Proc/EffectSettings/EffectSettingsExport",
                            "RegisterFactory",
                            217};
    EXPECT_EQ(FailureOf(plugin.registerFrame), duplicate);
    EXPECT_EQ(plugin.failureOf(plugin.registerFrame), duplicate);
}

// A plugin that is to go has a factory of the host's in its stead, which finds out who can make the class now.
TEST(BorderRegistration, ThePluginGoesAndComesBack)
{
    static const Plugin* current = nullptr;
    const auto makeFrame = [] { return current ? current->makeFrame(1) : nullptr; };
    IEffectSettings::RegisterFactory("EFFECT_FRAME_OF_ANY_ROUND", makeFrame);
    for (int round = 1; round <= 3; ++round)
    {
        {
            const Module module(BORDERS_PLUGIN);
            current = module.Get<const Plugin*()>("BordersPlugin")();
            EXPECT_EQ(current->widthOf(*IEffectSettings::CreateEffectSettings("EFFECT_FRAME_OF_ANY_ROUND")), 1) << round;
            EXPECT_EQ(FailureOf([] { current->raise("text"); }), RAISED) << round;
            EXPECT_EQ(current->failureOf([] { IEffectSettings::CreateEffectSettings("EFFECT_NOTHING"); }), UNKNOWN) << round;
            EXPECT_TRUE(Module::IsLoaded(BORDERS_PLUGIN)) << round;
        }
        current = nullptr;
        EXPECT_FALSE(Module::IsLoaded(BORDERS_PLUGIN)) << round;
        EXPECT_FALSE(IEffectSettings::CreateEffectSettings("EFFECT_FRAME_OF_ANY_ROUND")) << round;
    }
}

} // namespace
} // namespace Borders
