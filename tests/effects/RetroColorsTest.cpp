#include "Proc/EffectSettings/RetroColorsSettings.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::RetroColorsSettings;
using Ombrel::Proc::SettingsEffectRetroColors;
using Support::Map;

using RetroType = SettingsEffectRetroColors::RetroType;

TEST(RetroColors, KnowsItsTypesByTheStoredSpellingOnly)
{
    for (const char* unknown : {"70s", "en70S", "Sepia", "ensepia"})
    {
        RetroColorsSettings effect;
        effect.GetTypedSettings().SetType(RetroType::enSepia);
        effect.Deserialize(Map({{"type", unknown}}));
        EXPECT_EQ(effect.GetTypedSettings().GetType(), RetroType::enRetro) << unknown;
    }
}

} // namespace
