#include "Proc/EffectSettings/ColorFilterSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::ColorFilterSettings;
using Ombrel::Proc::SettingsEffectColorFilter;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

using Preset = SettingsEffectColorFilter::Preset;

TEST(ColorFilter, MultiplyIsTheLastPreset)
{
    const auto effect = Restored<ColorFilterSettings>(Map({{"preset", "enPrasetMultiply"}}));
    EXPECT_EQ(static_cast<int>(effect.GetTypedSettings().GetPreset()), 36);
    EXPECT_EQ(StoredForm(effect), Map({{"preset", "enPrasetMultiply"}}));
}

TEST(ColorFilter, KnowsItsPresetsByTheStoredSpellingOnly)
{
    for (const char* unknown : {"enPreset05", "enPreset5", "enPraset5", "enPraset37", "enPraset00", "enpraset05"})
    {
        ColorFilterSettings effect;
        effect.GetTypedSettings().SetPreset(Preset::enPraset05);
        effect.Deserialize(Map({{"preset", unknown}}));
        EXPECT_EQ(effect.GetTypedSettings().GetPreset(), Preset::enPraset01) << unknown;
    }
}

} // namespace
