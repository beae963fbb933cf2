#include "Proc/EffectSettings/BalanceLumaSettings.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::BalanceLumaSettings;
using Support::Map;

TEST(BalanceLuma, AnyOfItsValuesEndsItsEmptiness)
{
    const std::pair<const char*, PropertyTree> values[] = {
        {"shadows", 1}, {"shadows", -1}, {"highlights", 1}, {"exposure", -1}, {"autoContrast", true}};
    for (const auto& [key, value] : values)
    {
        BalanceLumaSettings effect;
        EXPECT_TRUE(effect.IsEmpty());
        effect.GetPropertyAccess()->SetProperty(key, value);
        EXPECT_FALSE(effect.IsEmpty()) << key;
        EXPECT_FALSE(effect.GetTypedSettings().IsEmpty()) << key;
    }
}

} // namespace
