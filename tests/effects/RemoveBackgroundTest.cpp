#include "Proc/EffectSettings/RemoveBackgroundSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using Ombrel::PhotoCore::RemoveBackgroundSettings;
using Ombrel::Proc::RgbaColor;
using Support::Map;
using Support::StoredForm;

TEST(RemoveBackground, TheBackgroundIsStoredEvenByDefault)
{
    EXPECT_EQ(StoredForm(RemoveBackgroundSettings()), Map({{"backgroundSettings", Map({})}}));
}

TEST(RemoveBackground, WithinTheBackgroundOnlyWhatDiffersIsStored)
{
    RemoveBackgroundSettings effect;
    effect.GetTypedSettings().m_backgroundSettings.m_bgFileName = "beach.jpg";
    EXPECT_EQ(StoredForm(effect), Map({{"backgroundSettings", Map({{"bgFileName", "beach.jpg"}})}}));

    RemoveBackgroundSettings restored;
    restored.Deserialize(StoredForm(effect));
    EXPECT_EQ(restored.GetTypedSettings().m_backgroundSettings.m_bgFileName, "beach.jpg");
    EXPECT_TRUE((restored.GetTypedSettings().m_backgroundSettings.m_bgColor == RgbaColor{0, 0, 0, 255}));
}

TEST(RemoveBackground, AMissingBackgroundIsReset)
{
    for (const auto& tree : {Map({}), Map({{"backgroundSettings", Map({})}})})
    {
        RemoveBackgroundSettings effect;
        effect.GetTypedSettings().m_backgroundSettings = {"beach.jpg", {1, 2, 3, 4}};
        effect.Deserialize(tree);
        EXPECT_TRUE(effect.GetTypedSettings().m_backgroundSettings ==
                    RemoveBackgroundSettings().GetTypedSettings().m_backgroundSettings);
        EXPECT_EQ(StoredForm(effect), Map({{"backgroundSettings", Map({})}}));
    }
}

TEST(RemoveBackground, AnotherBackgroundLeavesTwoEffectsEqual)
{
    RemoveBackgroundSettings effect;
    effect.GetTypedSettings().m_backgroundSettings = {"beach.jpg", {1, 2, 3, 4}};
    EXPECT_TRUE(effect == RemoveBackgroundSettings());
    EXPECT_TRUE(effect.GetEffectSettings().IsEqualTo(RemoveBackgroundSettings().GetEffectSettings()));
}

} // namespace
