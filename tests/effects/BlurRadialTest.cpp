#include "Proc/EffectSettings/BlurRadialSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <vector>

namespace Ombrel::Proc
{

void PrintTo(const SettingsEffectBlurRadial::TracePoint& point, std::ostream* out)
{
    *out << '(' << point.m_x << ", " << point.m_y << ')';
}

} // namespace Ombrel::Proc

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::BlurRadialSettings;
using Ombrel::Proc::SettingsEffectBlurRadial;
using Support::List;
using Support::Map;
using Support::StoredForm;

using Trace = std::vector<SettingsEffectBlurRadial::TracePoint>;

BlurRadialSettings WithTrace(const Trace& trace)
{
    BlurRadialSettings effect;
    effect.GetTypedSettings().m_trace = trace;
    return effect;
}

TEST(BlurRadial, TraceIsLeftAloneByWhatIsNoList)
{
    for (const PropertyTree& value : {PropertyTree(5), Map({{"x", 1}}), PropertyTree()})
    {
        BlurRadialSettings effect = WithTrace({{1, 2}, {3, 4}});
        effect.Deserialize(Map({{"trace", value}}));
        EXPECT_EQ(effect.GetTypedSettings().m_trace, (Trace{{1, 2}, {3, 4}})) << testing::PrintToString(value);
        effect.GetPropertyAccess()->SetProperty("trace", value);
        EXPECT_EQ(effect.GetTypedSettings().m_trace, (Trace{{1, 2}, {3, 4}})) << testing::PrintToString(value);
    }
}

TEST(BlurRadial, TraceIsEmptiedByAMissingKeyAndByAnEmptyList)
{
    BlurRadialSettings effect = WithTrace({{1, 2}});
    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().m_trace, Trace{});

    effect = WithTrace({{1, 2}});
    effect.Deserialize(Map({{"trace", List({})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_trace, Trace{});
}

TEST(BlurRadial, TraceIsReplacedInOrder)
{
    BlurRadialSettings effect = WithTrace({{1, 2}, {3, 4}, {5, 6}});
    effect.Deserialize(Map({{"trace", List({Map({{"x", 9}, {"y", 8}}), Map({{"y", std::int64_t{4294967303}}, {"z", 1}})})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_trace, (Trace{{9, 8}, {0, 7}}));
}

TEST(BlurRadial, TraceLeavesZeroesOutAndReadsThemBack)
{
    const BlurRadialSettings effect = WithTrace({{0, 0}, {2, 0}, {0, 5}});
    const PropertyTree stored = StoredForm(effect);
    EXPECT_EQ(stored, Map({{"trace", List({Map({}), Map({{"x", 2}}), Map({{"y", 5}})})}}));

    BlurRadialSettings restored = WithTrace({{7, 7}, {7, 7}});
    restored.Deserialize(stored);
    EXPECT_EQ(restored.GetTypedSettings().m_trace, (Trace{{0, 0}, {2, 0}, {0, 5}}));
}

TEST(BlurRadial, PropertyShowsWholePointsAndTakesParts)
{
    BlurRadialSettings effect = WithTrace({{7, 7}});
    const auto access = effect.GetPropertyAccess();
    access->SetProperty("trace", List({Map({{"y", 5}})}));
    EXPECT_EQ(access->GetProperty("trace"), List({Map({{"x", 0}, {"y", 5}})}));
}

TEST(BlurRadial, TraceEndsBeforeAnElementThatIsNoMap)
{
    BlurRadialSettings effect = WithTrace({{1, 2}});
    EXPECT_THROW(effect.Deserialize(Map({{"trace", List({Map({{"x", 9}}), 5, Map({{"x", 3}})})}})), std::invalid_argument);
    EXPECT_EQ(effect.GetTypedSettings().m_trace, (Trace{{9, 0}}));
}

TEST(BlurRadial, ComparesTheTracePointByPoint)
{
    const BlurRadialSettings effect = WithTrace({{1, 2}, {3, 4}});
    EXPECT_TRUE(effect == WithTrace({{1, 2}, {3, 4}}));
    EXPECT_FALSE(effect == WithTrace({{1, 2}}));
    EXPECT_FALSE(effect == WithTrace({{1, 2}, {3, 5}}));
    EXPECT_FALSE(effect == WithTrace({{1, 2}, {4, 4}}));
}

} // namespace
