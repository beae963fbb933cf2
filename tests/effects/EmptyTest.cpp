#include "Proc/EffectSettings/EmptySettings.h"

#include "Proc/EffectSettings/AcidSettings.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel::PhotoCore;

TEST(Empty, TheValuePlaysNoPartInTheComparison)
{
    EmptySettings a;
    EmptySettings b;
    b.GetTypedSettings().m_value = "x";
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(static_cast<const IEffectSettings&>(a) == b);
    EXPECT_FALSE(a != b);
    EXPECT_FALSE(a == AcidSettings());
    EXPECT_FALSE(a.GetEffectSettings().IsEqualTo(b.GetEffectSettings()));
}

} // namespace
