#include "Proc/EffectSettings/ColoredGlassSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::ColoredGlassSettings;
using Support::Map;
using Support::StoredForm;

TEST(ColoredGlass, RecordIsEmptyWithoutAlphaWhateverTheColour)
{
    ColoredGlassSettings effect;
    effect.GetTypedSettings().m_color = {1, 2, 3, 4};
    EXPECT_TRUE(effect.GetTypedSettings().IsEmpty());
    for (const int alpha : {1, -1, 255})
    {
        effect.GetTypedSettings().m_alpha = alpha;
        EXPECT_FALSE(effect.GetTypedSettings().IsEmpty()) << alpha;
    }
}

} // namespace
