#include "Proc/EffectSettings/GIMPShadowsHightlightsSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::GIMPShadowsHightlightsSettings;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(GimpShadowsHightlights, SpellsItsKeysWithoutTheSlip)
{
    const auto misspelled = Restored<GIMPShadowsHightlightsSettings>(Map({{"hightlights", 5.0}}));
    EXPECT_EQ(misspelled.GetTypedSettings().GetHighlights(), 0.0f);
    EXPECT_EQ(StoredForm(misspelled), Map({}));

    const auto effect = Restored<GIMPShadowsHightlightsSettings>(Map({{"highlights", 5.0}}));
    EXPECT_EQ(effect.GetTypedSettings().GetHighlights(), 5.0f);
}

} // namespace
