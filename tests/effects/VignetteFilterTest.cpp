#include "Proc/EffectSettings/VignetteFilterSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::VignetteFilterSettings;
using Ombrel::Proc::SettingsEffectVignetteFilter;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(VignetteFilter, TheAspectComesBack)
{
    const auto effect = Restored<VignetteFilterSettings>(Map({{"aspect", "enOgn"}}));
    EXPECT_EQ(static_cast<int>(effect.GetTypedSettings().GetAspect()), 1);
    EXPECT_EQ(StoredForm(effect), Map({{"aspect", "enOgn"}}));
    EXPECT_TRUE(Restored<VignetteFilterSettings>(StoredForm(effect)) == effect);
}

// The centre and the radii are alike in kind and default.
TEST(VignetteFilter, EachNumberHasItsOwnKey)
{
    const auto effect =
        Restored<VignetteFilterSettings>(Map({{"x0", 1.0}, {"y0", 2.0}, {"RInternal", 3.0}, {"RExternal", 4.0}}));
    EXPECT_EQ(effect.GetTypedSettings().GetX0(), 1.0);
    EXPECT_EQ(effect.GetTypedSettings().GetY0(), 2.0);
    EXPECT_EQ(effect.GetTypedSettings().GetRInternal(), 3.0);
    EXPECT_EQ(effect.GetTypedSettings().GetRExternal(), 4.0);
}

TEST(VignetteFilter, TheRadiiAreStoredWithACapital)
{
    const auto effect = Restored<VignetteFilterSettings>(Map({{"rInternal", 3.0}, {"rExternal", 4.0}}));
    EXPECT_EQ(StoredForm(effect), Map({}));
}

TEST(VignetteFilter, AnUnknownNameIsTheFirst)
{
    const auto effect = Restored<VignetteFilterSettings>(Map({{"form", "enForm7"}, {"smooth", "enSin"}, {"aspect", "enogn"}}));
    EXPECT_EQ(effect.GetTypedSettings().GetForm(), SettingsEffectVignetteFilter::Form::enForm1);
    EXPECT_EQ(effect.GetTypedSettings().GetSmooth(), SettingsEffectVignetteFilter::Smooth::enLin);
    EXPECT_EQ(effect.GetTypedSettings().GetAspect(), SettingsEffectVignetteFilter::Aspect::enEql);
}

} // namespace
