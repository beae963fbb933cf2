#include "Proc/EffectSettings/ColorMixBurnSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::ColorMixBurnSettings;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(ColorMixBurn, StoresAnyStrength)
{
    for (const double strength : {-1e9, -0.1, 0.1, 1e9})
    {
        const auto effect = Restored<ColorMixBurnSettings>(Map({{"strength", strength}}));
        EXPECT_EQ(effect.GetTypedSettings().GetStrength(), strength);
        EXPECT_EQ(StoredForm(effect), Map({{"strength", strength}}));
    }
}

} // namespace
