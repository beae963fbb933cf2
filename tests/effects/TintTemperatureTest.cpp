#include "Proc/EffectSettings/TintTemperatureSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::TintTemperatureSettings;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(TintTemperature, EitherOfItsValuesEndsItsEmptiness)
{
    EXPECT_TRUE(Restored<TintTemperatureSettings>(Map({{"tint", 0}, {"temperature", 0}})).IsEmpty());
    EXPECT_FALSE(Restored<TintTemperatureSettings>(Map({{"tint", 1}, {"temperature", 0}})).IsEmpty());
    EXPECT_FALSE(Restored<TintTemperatureSettings>(Map({{"tint", 0}, {"temperature", -1}})).IsEmpty());
}

TEST(TintTemperature, HasAWholeTemperature)
{
    const auto effect = Restored<TintTemperatureSettings>(Map({{"temperature", 5.75}}));
    EXPECT_EQ(effect.GetTypedSettings().m_temperature, 5);
    EXPECT_EQ(StoredForm(effect), Map({{"temperature", 5}}));
}

} // namespace
