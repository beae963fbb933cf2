#include "Proc/EffectSettings/NegateVideoSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::NegateVideoSettings;
using Ombrel::Proc::SettingsEffectNegateVideo;
using Support::List;
using Support::Map;
using Support::StoredForm;

using Channel = SettingsEffectNegateVideo::Channel;
using Channels = std::set<Channel>;

NegateVideoSettings WithMode(const Channels& channels)
{
    NegateVideoSettings effect;
    effect.GetTypedSettings().SetMode(channels);
    return effect;
}

TEST(NegateVideo, ChannelsAreSingleBitsWithNames)
{
    for (const auto& [name, bit] : {std::pair("Red", 1), {"Green", 2}, {"Blue", 4}, {"Alpha", 8}})
    {
        NegateVideoSettings effect;
        effect.Deserialize(Map({{"mode", List({name})}}));
        EXPECT_EQ(effect.GetTypedSettings().GetMode(), Channels{Channel{bit}}) << name;
        EXPECT_EQ(StoredForm(effect), Map({{"mode", List({name})}}));
    }
}

TEST(NegateVideo, RepeatedChannelsFallTogetherAndComeOutInOrder)
{
    NegateVideoSettings effect;
    effect.Deserialize(Map({{"mode", List({"Alpha", "Red", "Red"})}}));
    EXPECT_TRUE(effect == WithMode({Channel{9}})); // the mask is 9
    EXPECT_EQ(effect.GetTypedSettings().GetMode(), (Channels{Channel::Red, Channel::Alpha}));
    EXPECT_EQ(StoredForm(effect), Map({{"mode", List({"Red", "Alpha"})}}));
}

TEST(NegateVideo, ModeIsReplacedAndNotAddedTo)
{
    NegateVideoSettings effect = WithMode({Channel::Blue});
    effect.Deserialize(Map({{"mode", List({"Red"})}}));
    EXPECT_EQ(effect.GetTypedSettings().GetMode(), Channels{Channel::Red});
}

TEST(NegateVideo, UnknownNamesAddNothing)
{
    NegateVideoSettings effect = WithMode({Channel::Blue});
    effect.Deserialize(Map({{"mode", List({"Green", "green", "", Map({})})}}));
    EXPECT_TRUE(effect == WithMode({Channel::Green}));
}

TEST(NegateVideo, WhatIsNoListClearsTheMode)
{
    for (const PropertyTree& value : {PropertyTree("Red"), Map({}), PropertyTree()})
    {
        NegateVideoSettings effect = WithMode({Channel::Blue});
        effect.Deserialize(Map({{"mode", value}}));
        EXPECT_EQ(effect.GetTypedSettings().GetMode(), Channels{}) << testing::PrintToString(value);

        effect = WithMode({Channel::Blue});
        effect.GetPropertyAccess()->SetProperty("mode", value);
        EXPECT_EQ(effect.GetTypedSettings().GetMode(), Channels{}) << testing::PrintToString(value);
    }
}

TEST(NegateVideo, BitsOfNoChannelAreComparedAndNotStored)
{
    const NegateVideoSettings effect = WithMode({Channel::Red, Channel{16}});
    EXPECT_EQ(effect.GetTypedSettings().GetMode(), Channels{Channel::Red});
    EXPECT_EQ(StoredForm(effect), Map({{"mode", List({"Red"})}}));
    EXPECT_FALSE(effect == WithMode({Channel::Red}));
    EXPECT_FALSE(WithMode({Channel{16}}).GetEffectSettings().IsEmpty());
}

} // namespace
