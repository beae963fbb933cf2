#include "Proc/EffectSettings/FlipSettings.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::Proc::SettingsEffectFlip;

template <class Effect>
concept HasPublicIsAdditive = requires(const Effect& effect)
{
    effect.IsAdditive();
};

template <class Effect>
concept HasPublicAdd = requires(Effect& effect)
{
    effect.Add(effect);
};

FlipSettings Flip(bool horizontal, bool vertical)
{
    SettingsEffectFlip record;
    record.SetHorizontal(horizontal);
    record.SetVertical(vertical);
    return FlipSettings(record);
}

void Add(IEffectSettings& effect, const IEffectSettings& other)
{
    effect.Add(other);
}

TEST(Flip, EachAxisIsTheExclusiveOr)
{
    for (const bool horizontal : {false, true})
    {
        for (const bool vertical : {false, true})
        {
            FlipSettings neither = Flip(horizontal, vertical);
            Add(neither, Flip(false, false));
            EXPECT_TRUE(neither == Flip(horizontal, vertical));

            FlipSettings first = Flip(horizontal, vertical);
            Add(first, Flip(true, false));
            EXPECT_TRUE(first == Flip(!horizontal, vertical));

            FlipSettings second = Flip(horizontal, vertical);
            Add(second, Flip(false, true));
            EXPECT_TRUE(second == Flip(horizontal, !vertical));

            FlipSettings both = Flip(horizontal, vertical);
            Add(both, Flip(true, true));
            EXPECT_TRUE(both == Flip(!horizontal, !vertical));
        }
    }
}

TEST(Flip, TwoEqualFlipsCancel)
{
    FlipSettings effect = Flip(true, true);
    const FlipSettings horizontal = Flip(true, false);
    Add(effect, horizontal);
    EXPECT_FALSE(effect.GetTypedSettings().GetHorizontal());
    Add(effect, horizontal);
    EXPECT_TRUE(effect.GetTypedSettings().GetHorizontal());
    EXPECT_TRUE(effect.GetTypedSettings().GetVertical());

    Add(effect, effect);
    EXPECT_FALSE(effect.GetTypedSettings().GetHorizontal());
    EXPECT_FALSE(effect.GetTypedSettings().GetVertical());
}

TEST(Flip, AddsThroughTheInterfaceAlone)
{
    EXPECT_FALSE(HasPublicIsAdditive<FlipSettings>);
    EXPECT_FALSE(HasPublicAdd<FlipSettings>);
}

TEST(Flip, OnlyTheRecordSaysThatItIsEmpty)
{
    EXPECT_TRUE(FlipSettings().GetTypedSettings().IsEmpty());
    EXPECT_FALSE(Flip(false, true).GetTypedSettings().IsEmpty());
    EXPECT_FALSE(FlipSettings().IsEmpty());
}

} // namespace
