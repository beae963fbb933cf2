#include "Proc/EffectSettings/AutoEnhanceSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::AutoEnhanceSettings;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(AutoEnhance, OmitsFullIntensityAndWritesNone)
{
    EXPECT_EQ(AutoEnhanceSettings().GetTypedSettings().m_intensity, 100.0);
    EXPECT_EQ(StoredForm(Restored<AutoEnhanceSettings>(Map({{"intensity", 100.0}}))), Map({}));
    EXPECT_EQ(StoredForm(Restored<AutoEnhanceSettings>(Map({{"intensity", 0.0}}))), Map({{"intensity", 0.0}}));
}

} // namespace
