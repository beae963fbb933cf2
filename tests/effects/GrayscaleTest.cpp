#include "Proc/EffectSettings/GrayscaleSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::GrayscaleSettings;
using Ombrel::Proc::SettingsEffectGrayscale;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

using Method = SettingsEffectGrayscale::GrayscaleMethod;

TEST(Grayscale, TakesItsMethodOnConstruction)
{
    const GrayscaleSettings effect{SettingsEffectGrayscale(Method::Rec709Luma)};
    EXPECT_EQ(StoredForm(effect), Map({{"method", "Rec709Luma"}}));
    EXPECT_FALSE(effect.GetTypedSettings().IsEmpty());
}

TEST(Grayscale, ReadsWholeNamesOnly)
{
    const auto effect = Restored<GrayscaleSettings>(Map({{"method", "Rec709Luma"}}));
    EXPECT_EQ(effect.GetTypedSettings().m_method, Method::Rec709Luma);
    EXPECT_EQ(StoredForm(effect), Map({{"method", "Rec709Luma"}}));

    GrayscaleSettings other{SettingsEffectGrayscale(Method::Average)};
    other.Deserialize(Map({{"method", "Rec709"}}));
    EXPECT_EQ(other.GetTypedSettings().m_method, Method::Empty);
}

} // namespace
