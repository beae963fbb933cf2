#include "Proc/EffectSettings/BiColorToningSettings.h"
#include "Proc/EffectSettings/SplitToningSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <typeinfo>

namespace
{

using Ombrel::PhotoCore::BiColorToningSettings;
using Ombrel::PhotoCore::SplitToningSettings;
using Ombrel::Proc::RgbaColor;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(ColorPairToning, GoesFromOpaqueBlackToOpaqueWhite)
{
    EXPECT_EQ(BiColorToningSettings().GetTypedSettings().m_colorFirst, (RgbaColor{0, 0, 0, 255}));
    EXPECT_EQ(BiColorToningSettings().GetTypedSettings().m_colorSecond, (RgbaColor{255, 255, 255, 255}));
    EXPECT_EQ(SplitToningSettings().GetTypedSettings().m_colorFirst, (RgbaColor{0, 0, 0, 255}));
    EXPECT_EQ(SplitToningSettings().GetTypedSettings().m_colorSecond, (RgbaColor{255, 255, 255, 255}));
}

TEST(ColorPairToning, StoresRedFirst)
{
    BiColorToningSettings effect;
    effect.GetTypedSettings().m_colorFirst = {0x12, 0x34, 0x56, 0x78};
    EXPECT_EQ(StoredForm(effect), Map({{"colorFirst", "12345678"}}));
}

TEST(ColorPairToning, TheTwoEffectsAreNotEachOther)
{
    EXPECT_FALSE(BiColorToningSettings() == SplitToningSettings());
    EXPECT_FALSE(SplitToningSettings() == BiColorToningSettings());
    EXPECT_THROW(BiColorToningSettings().SetEffectSettings(SplitToningSettings().GetEffectSettings()), std::bad_cast);
}

} // namespace
