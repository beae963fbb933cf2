#include "Proc/EffectSettings/LightLeaksSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::LightLeaksSettings;
using Ombrel::Proc::SettingsEffectLightLeaks;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

using LeakPreset = SettingsEffectLightLeaks::LeakPreset;

TEST(LightLeaks, ThereAreSixteenPresets)
{
    const auto last = Restored<LightLeaksSettings>(Map({{"preset", "enPreset16"}}));
    EXPECT_EQ(static_cast<int>(last.GetTypedSettings().GetPreset()), 15);

    for (const char* unknown : {"enPreset17", "enPreset0", "enPreset01", "enpreset16", "16"})
    {
        LightLeaksSettings effect;
        effect.GetTypedSettings().SetPreset(LeakPreset::enPreset16);
        effect.Deserialize(Map({{"preset", unknown}}));
        EXPECT_EQ(effect.GetTypedSettings().GetPreset(), LeakPreset::enPreset1) << unknown;
    }
}

TEST(LightLeaks, ANumberWithoutANameReadsBackAsTheFirst)
{
    LightLeaksSettings effect;
    effect.GetTypedSettings().SetPreset(static_cast<LeakPreset>(16));
    EXPECT_EQ(StoredForm(effect), Map({{"preset", ""}}));
    effect.Deserialize(StoredForm(effect));
    EXPECT_EQ(effect.GetTypedSettings().GetPreset(), LeakPreset::enPreset1);
}

} // namespace
