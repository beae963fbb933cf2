#include "Exception/Exception.h"
#include "Proc/EffectSettings/GuidedFilterSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::EffectSettings;
using Ombrel::PhotoCore::GuidedFilterSettings;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::Proc::SettingsEffectGuidedFilter;
using Support::Map;
using Support::StoredForm;

TEST(GuidedFilter, IsMadeWithItsThreeValuesOrWithout)
{
    const SettingsEffectGuidedFilter record(4, 8, 0.25);
    EXPECT_EQ(record.m_radius, 4);
    EXPECT_EQ(record.m_depth, 8);
    EXPECT_EQ(record.m_eps, 0.25);

    const SettingsEffectGuidedFilter byDefault;
    EXPECT_EQ(byDefault.m_radius, 10);
    EXPECT_EQ(byDefault.m_depth, -1);
    EXPECT_EQ(byDefault.m_eps, 1e-05);
}

TEST(GuidedFilter, RecordIsEmptyIfAnyValueIsZero)
{
    EXPECT_FALSE(SettingsEffectGuidedFilter().IsEmpty());
    EXPECT_TRUE(SettingsEffectGuidedFilter(0, -1, 1e-05).IsEmpty());
    EXPECT_TRUE(SettingsEffectGuidedFilter(10, 0, 1e-05).IsEmpty());
    EXPECT_TRUE(SettingsEffectGuidedFilter(10, -1, 0.0).IsEmpty());
    EXPECT_FALSE(GuidedFilterSettings(SettingsEffectGuidedFilter(0, -1, 1e-05)).IsEmpty());
}

TEST(GuidedFilter, NotANumberIsNeitherZeroNorItself)
{
    const SettingsEffectGuidedFilter record(10, -1, std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(record.IsEmpty());
    EXPECT_FALSE(record == record);
}

// It has a class id and no entry in the registry.
TEST(GuidedFilter, CanBeWrittenByPointerAndNotReadBack)
{
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, GuidedFilterSettings::Create(SettingsEffectGuidedFilter(4, -1, 1e-05)));
    EXPECT_EQ(tree, Map({{"name", "EFFECT_GUIDED_FILTER"}, {"radius", 4}}));

    std::shared_ptr<IEffectSettings> effect;
    EXPECT_THROW(EffectSettings::DeserializePtr(tree, effect), Ombrel::Exception);
    EXPECT_FALSE(effect);

    GuidedFilterSettings restored;
    restored.Deserialize(tree);
    EXPECT_EQ(restored.GetTypedSettings().m_radius, 4);
}

} // namespace
