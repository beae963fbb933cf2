#include "Proc/EffectSettings/FlipSettings.h"

#include "effects/Adding.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::Proc::SettingsEffectFlip;

static_assert(AddsThroughTheInterfaceAlone<FlipSettings>);

FlipSettings Flip(bool horizontal, bool vertical)
{
    SettingsEffectFlip record;
    record.SetHorizontal(horizontal);
    record.SetVertical(vertical);
    return FlipSettings(record);
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

} // namespace
