#include "Proc/EffectSettings/InpaintSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

using Ombrel::PhotoCore::InpaintSettings;
using Support::Map;
using Support::StoredForm;

InpaintSettings WithLookupSize(double value)
{
    InpaintSettings effect;
    effect.GetTypedSettings().m_lookupSize = value;
    return effect;
}

bool AreEqual(double a, double b)
{
    const InpaintSettings left = WithLookupSize(a);
    const InpaintSettings right = WithLookupSize(b);
    EXPECT_EQ(left == right, left.GetEffectSettings().IsEqualTo(right.GetEffectSettings())) << a << ", " << b;
    EXPECT_EQ(left == right, right == left) << a << ", " << b;
    return left == right;
}

TEST(Inpaint, LookupSizesAreEqualWithinATolerance)
{
    EXPECT_TRUE(AreEqual(1.0, 1.000001));
    EXPECT_FALSE(AreEqual(1.0, 1.0001));
    EXPECT_FALSE(AreEqual(-1.0, 1.0));
    EXPECT_TRUE(AreEqual(0.0, std::nextafter(1e-05, 0.0)));
    EXPECT_FALSE(AreEqual(0.0, 1e-05)); // below it, not at it
}

TEST(Inpaint, WhatIsEqualMayBeStoredDifferently)
{
    EXPECT_EQ(StoredForm(WithLookupSize(1.0)), Map({{"lookupSize", 1.0}}));
    EXPECT_EQ(StoredForm(WithLookupSize(1.000001)), Map({{"lookupSize", 1.000001}}));
    EXPECT_EQ(StoredForm(WithLookupSize(1.0001)), Map({{"lookupSize", 1.0001}}));
    EXPECT_EQ(StoredForm(WithLookupSize(0.000001)), Map({{"lookupSize", 0.000001}}));
}

TEST(Inpaint, ANaNOrAnInfinityEqualsNothing)
{
    const double nan = std::nan("");
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(AreEqual(nan, nan));
    EXPECT_FALSE(AreEqual(nan, 0.0));
    EXPECT_FALSE(AreEqual(infinity, infinity));
}

TEST(Inpaint, PatchSizesAreComparedExactly)
{
    InpaintSettings effect;
    effect.GetTypedSettings().m_patchSize = 12;
    EXPECT_FALSE(effect == InpaintSettings());
}

TEST(Inpaint, IsNotEmptyHoweverSmallItsPatch)
{
    InpaintSettings effect;
    effect.GetTypedSettings().m_patchSize = 0;
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
}

} // namespace
