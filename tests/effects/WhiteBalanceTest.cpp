#include "Proc/EffectSettings/WhiteBalanceSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::WhiteBalanceSettings;
using Support::Map;
using Support::Restored;

TEST(WhiteBalance, RecordIsEmptyForAnyGrey)
{
    EXPECT_TRUE(WhiteBalanceSettings().GetTypedSettings().IsEmpty());
    for (const char* grey : {"80808080", "000000ff", "ffffff00", "01010102"})
    {
        const auto effect = Restored<WhiteBalanceSettings>(Map({{"color", grey}}));
        EXPECT_TRUE(effect.GetTypedSettings().IsEmpty()) << grey;
        EXPECT_FALSE(effect.IsEmpty()) << grey;
    }
    for (const char* colour : {"818080ff", "808180ff", "808081ff"})
    {
        const auto effect = Restored<WhiteBalanceSettings>(Map({{"color", colour}}));
        EXPECT_FALSE(effect.GetTypedSettings().IsEmpty()) << colour;
    }
}

} // namespace
