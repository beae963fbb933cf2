#include "Inspection/Changes.h"

#include "Inspection/JsonPatch.h"
#include "Inspection/Merge.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "support/FailingMemory.h"
#include "support/SmallStack.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>
#include <utility>

// Trees that nobody would store.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

constexpr std::size_t STACK = 256 * 1024 * (Support::HAS_SANITIZER ? 8 : 1);

// A value so deep in maps or lists.
PropertyTree Deep(PropertyTree value, int levels, bool areMaps)
{
    for (int level = 0; level != levels; ++level)
    {
        PropertyTree outer;
        if (areMaps)
        {
            outer["x"] = std::move(value);
        }
        else
        {
            outer.append(std::move(value));
        }
        value = std::move(outer);
    }
    return value;
}

PropertyTree Tiles(PropertyTree innermost, int levels)
{
    PropertyTree tree = std::move(innermost);
    for (int level = 0; level != levels; ++level)
    {
        PropertyTree outer;
        outer["name"] = "effectSettingsTileStub";
        outer["pre"].append(std::move(tree));
        tree = std::move(outer);
    }
    return tree;
}

void GoThereAndBack(const PropertyTree& before, const PropertyTree& after)
{
    const ChangeList changes = Diff(before, after);
    ASSERT_FALSE(changes.empty());
    PropertyTree tree = before;
    Apply(changes, tree);
    EXPECT_TRUE(Diff(tree, after).empty());
    Apply(Inverse(changes), tree);
    EXPECT_TRUE(tree == before);
    ApplyJsonPatch(ToJsonPatch(changes), tree);
    EXPECT_TRUE(Diff(tree, after).empty());
    const MergeResult merged = Merge(before, before, after);
    EXPECT_TRUE(merged.conflicts.empty());
    EXPECT_TRUE(Diff(merged.merged, after).empty());
}

TEST(ChangesOfAnyDepth, TakeNoStackOfTheThread)
{
    Support::RunOnStack(STACK,
                        []
                        {
                            for (const bool areMaps : {true, false})
                            {
                                PropertyTree before;
                                before["name"] = "EFFECT_ACID";
                                PropertyTree after = before;
                                before["later"] = Deep(1, 20000, areMaps);
                                after["later"] = Deep(2, 20000, areMaps);
                                GoThereAndBack(before, after);
                                GoThereAndBack(Deep(1, 20000, areMaps), Deep(2, 20000, areMaps));
                                before["name"] = "EFFECT_NEGATE_VIDEO"; // a set of what cannot be in it
                                after["name"] = "EFFECT_NEGATE_VIDEO";
                                before["mode"].append(Deep(1, 20000, areMaps));
                                after["mode"].append(Deep(2, 20000, areMaps));
                                GoThereAndBack(before, after);
                            }
                            PropertyTree acid;
                            acid["name"] = "EFFECT_ACID";
                            PropertyTree other = acid;
                            other["radius"] = 5;
                            GoThereAndBack(Tiles(acid, 511), Tiles(other, 511));
                            GoThereAndBack(Tiles(acid, 3000), Tiles(other, 3000)); // deeper than can be read
                        });
}

// Each allocation in turn fails: nothing is lost, and nothing is half done.
TEST(Changes, LeaveTheTreeAloneWithoutMemory)
{
    const PropertyTree before = ReadJson(R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_ADJUSTER"}, null])");
    const PropertyTree after = ReadJson(
        R"([{"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 4}}, {"name": "EFFECT_ACID", "radius": 2}, {"name": "EFFECT_SEPIA"}])");
    const ChangeList changes = Diff(before, after); // does all for the first time, too
    const PropertyTree patch = ToJsonPatch(changes);
    Merge(before, before, after);
    const auto failEach = [&](const auto& work)
    {
        bool isDone = false;
        for (std::size_t successes = 0; !isDone; ++successes)
        {
            PropertyTree tree = before;
            const Support::FailingMemory memory(successes, Support::FailingMemory::Mode::Once);
            try
            {
                work(tree);
                isDone = !memory.HasFailed();
            }
            catch (const std::bad_alloc&)
            {
                ASSERT_TRUE(tree == before);
            }
        }
    };
    failEach([&](PropertyTree& tree) { Apply(changes, tree); });
    failEach([&](PropertyTree& tree) { ApplyJsonPatch(patch, tree); });
    failEach([&](PropertyTree& tree) { static_cast<void>(Diff(tree, after)); });
    failEach([&](PropertyTree& tree) { static_cast<void>(Merge(before, tree, after)); });
}

} // namespace
