#include "Inspection/Changes.h"

#include "Inspection/Forms.h"
#include "Inspection/ListMoves.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

PropertyTree Tree(std::string_view json)
{
    return ReadJson(json, {.nonFiniteAsText = true});
}

std::string Lines(const ChangeList& changes)
{
    std::string lines;
    for (const Change& change : changes)
    {
        lines += TextOf(change) + "\n";
    }
    return lines;
}

struct Case
{
    const char* before;
    const char* after;
    const char* lines;
};

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.before << " to " << one.after;
}

class DiffOf : public testing::TestWithParam<Case>
{
};

TEST_P(DiffOf, SaysThis)
{
    EXPECT_EQ(Lines(Diff(Tree(GetParam().before), Tree(GetParam().after))), GetParam().lines);
}

constexpr const char* ACID = R"({"name": "EFFECT_ACID", "radius": 2})";

INSTANTIATE_TEST_SUITE_P(
    Values, DiffOf,
    testing::Values(
        Case{ACID, ACID, ""}, Case{ACID, R"({"name": "EFFECT_ACID", "radius": 3})", "radius: 2 -> 3\n"},
        // A key that is missing has its default, also one of every effect.
        Case{ACID, R"({"name": "EFFECT_ACID", "radius": 2, "sigma": 0.5, "implName": "default"})", ""},
        Case{ACID, R"({"name": "EFFECT_ACID"})", "radius: 2 -> 0\n"},
        Case{ACID, R"({"name": "EFFECT_ACID", "radius": 2, "implName": "x"})", "implName: \"default\" -> \"x\"\n"},
        Case{ACID, R"({"name": "EFFECT_ACID", "radius": 2, "helperSettings": {"maxWidth": 9}})",
             "helperSettings/maxWidth: 4294967295 -> 9\n"},
        // Numbers are compared by value.
        Case{R"({"name": "EFFECT_ACID", "radius": 2, "sigma": 1})", R"({"name": "EFFECT_ACID", "radius": 2.0, "sigma": 1.0})",
             ""},
        Case{R"({"name": "EFFECT_ACID", "sigma": "NaN"})", R"({"name": "EFFECT_ACID", "sigma": "NaN"})", ""},
        Case{R"({"name": "EFFECT_ACID", "sigma": "NaN"})", R"({"name": "EFFECT_ACID"})", "sigma: nan -> 0.5\n"},
        // In records, which by default may have other values than a record alone.
        Case{R"({"name": "EFFECT_ADJUSTER"})", R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 50}})",
             "smartBlur/chromaRadius: 100 -> 0\nsmartBlur/lumaRadius: 100 -> 50\n"},
        Case{R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 5}})",
             R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 7}})", "smartBlur/lumaRadius: 5 -> 7\n"},
        // What is not known, as it stands.
        Case{ACID, R"({"name": "EFFECT_ACID", "radius": 2, "later": [1]})", "later: nothing -> [1]\n"},
        Case{R"({"name": "EFFECT_X", "a": 1, "b": [1, 2]})", R"({"name": "EFFECT_X", "b": [2, 1]})",
             "a: 1 -> nothing\nb: [1, 2] -> [2, 1]\n"},
        Case{ACID, R"({"name": "EFFECT_ACID", "radius": "x"})", "radius: 2 -> \"x\"\n"},
        Case{ACID, R"({"name": "EFFECT_VIBRANCE"})",
             "{\"helperSettings\": {\"applyMode\": [], \"maxHeight\": 4294967295, \"maxWidth\": 4294967295, "
             "\"undoSet\": false}, \"implName\": \"default\", \"name\": \"EFFECT_ACID\", \"radius\": 2, \"sigma\": 0.5} "
             "-> {\"helperSettings\": {\"applyMode\": [], \"maxHeight\": 4294967295, \"maxWidth\": 4294967295, "
             "\"undoSet\": false}, \"implName\": \"default\", \"name\": \"EFFECT_VIBRANCE\", \"strength\": 0}\n"},
        Case{"3", "3.0", ""}, Case{"3", "4", "3 -> 4\n"}));

INSTANTIATE_TEST_SUITE_P(
    Lists, DiffOf,
    testing::Values(
        Case{R"([])", R"([{"name": "EFFECT_ACID"}])", "0: inserted EFFECT_ACID\n"},
        Case{R"([{"name": "EFFECT_ACID"}, null])", R"([null])", "0: removed EFFECT_ACID\n"},
        Case{R"([{"name": "EFFECT_ACID"}, {"name": "EFFECT_VIBRANCE"}])",
             R"([{"name": "EFFECT_VIBRANCE"}, {"name": "EFFECT_ACID"}])", "1: moved EFFECT_VIBRANCE to 0\n"},
        // Effects are found again by class and content; then their values have the new index.
        Case{R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_VIBRANCE", "strength": 5}])",
             R"([{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_VIBRANCE", "strength": 6}])",
             "0: removed EFFECT_ACID\n0: inserted EFFECT_EMPTY\n1/strength: 5 -> 6\n"},
        // In lists of effects in effects.
        Case{R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_ACID"}]})",
             R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_ACID", "radius": 4}]})",
             "pre/0: inserted EFFECT_EMPTY\npre/1/radius: 0 -> 4\n"},
        // Other lists by index.
        Case{R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 1, "y": 2}, {"x": 3, "y": 4}]})",
             R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 1, "y": 5}]})",
             "trace/1: removed {\"x\": 3, \"y\": 4}\ntrace/0/y: 2 -> 5\n"},
        // Sets and maps of colours have no order.
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red", "Alpha"]})",
             R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Alpha", "Red"]})", ""},
        Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red"]})",
             R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red", "Alpha"]})", "mode: [\"Red\"] -> [\"Red\", \"Alpha\"]\n"},
        Case{R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 1, "value": "ff0000ff"}, {"key": 2, "value": "ff0000ff"}]})",
             R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 2, "value": "ff0000ff"}, {"key": 1.0, "value": "ff0000ff"}]})",
             ""}));

// A slider: 40 values become one change.
TEST(Joined, MakesOneStepOfManyOfOneValue)
{
    const auto withRadius = [](int radius)
    {
        PropertyTree tree = Tree(R"({"name": "EFFECT_ADJUSTER"})");
        if (radius != 0)
        {
            tree["smartBlur"]["lumaRadius"] = radius;
        }
        return tree;
    };
    ChangeList joined;
    for (int value = 0; value != 40; ++value)
    {
        PropertyTree now = withRadius(value);
        PropertyTree next = withRadius(value + 1);
        joined = Joined(std::move(joined), Diff(now, next));
    }
    EXPECT_EQ(Lines(joined), "smartBlur/chromaRadius: 100 -> 0\nsmartBlur/lumaRadius: 100 -> 40\n");
    PropertyTree tree = withRadius(0);
    Apply(joined, tree);
    EXPECT_TRUE(Diff(tree, withRadius(40)).empty());
    Apply(Inverse(joined), tree);
    EXPECT_EQ(tree, withRadius(0));
}

TEST(Joined, KeepsWhatCannotJoin)
{
    const PropertyTree first = Tree(R"([{"name": "EFFECT_ACID", "radius": 1}])");
    const PropertyTree second = Tree(R"([{"name": "EFFECT_ACID", "radius": 2}])");
    const PropertyTree third = Tree(R"([{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_ACID", "radius": 2}])");
    const PropertyTree fourth = Tree(R"([{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_ACID", "radius": 3}])");
    const ChangeList joined = Joined(Joined(Diff(first, second), Diff(second, third)), Diff(third, fourth));
    EXPECT_EQ(Lines(joined), "0/radius: 1 -> 2\n0: inserted EFFECT_EMPTY\n1/radius: 2 -> 3\n");
    PropertyTree tree = first;
    Apply(joined, tree);
    EXPECT_EQ(tree, fourth);
    EXPECT_TRUE(Joined(Diff(first, second), Diff(second, first)).empty());
}

TEST(Apply, ChangesAllOrNothing)
{
    const ChangeList changes =
        Diff(Tree(R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_VIBRANCE"}])"),
             Tree(R"([{"name": "EFFECT_ACID", "radius": 2}, {"name": "EFFECT_VIBRANCE", "strength": 7}])"));
    PropertyTree other = Tree(R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_VIBRANCE", "strength": 3}])");
    const PropertyTree untouched = other;
    try
    {
        Apply(changes, other);
        FAIL();
    }
    catch (const ConflictError& conflict)
    {
        EXPECT_EQ(conflict.Place().ToText(), "1/strength");
        EXPECT_EQ(conflict.Expected(), PropertyTree(0));
        EXPECT_EQ(conflict.Found(), PropertyTree(3));
        EXPECT_STREQ(conflict.what(), "1/strength: expected 0, found 3");
    }
    EXPECT_EQ(other, untouched);
}

TEST(Apply, FindsNoPlace)
{
    const ChangeList changes =
        Diff(Tree(R"([null, {"name": "EFFECT_ACID"}])"), Tree(R"([null, {"name": "EFFECT_ACID", "radius": 2}])"));
    for (const char* json : {"[]", "[null]", "[null, null]", "[null, {}]", R"({"name": "EFFECT_ACID"})", "3"})
    {
        PropertyTree tree = Tree(json);
        EXPECT_THROW(Apply(changes, tree), ConflictError) << json;
        EXPECT_EQ(tree, Tree(json));
    }
    for (const ChangeKind kind : {ChangeKind::Insert, ChangeKind::Remove, ChangeKind::Move, ChangeKind::Value})
    {
        Change change{.kind = kind, .path = Path({std::size_t{5}}), .target = 1, .before = PropertyTree(1)};
        PropertyTree tree = Tree("[1, 2]");
        EXPECT_THROW(Apply(std::vector{change}, tree), ConflictError);
        change.path = Path({std::size_t{0}, std::size_t{5}});
        EXPECT_THROW(Apply(std::vector{change}, tree), ConflictError);
        change.path = Path({PathStep("x")});
        EXPECT_THROW(Apply(std::vector{change}, tree), ConflictError);
    }
}

// The full value counts, however it is stored; and nothing else is touched.
TEST(Apply, WorksOnOtherFiles)
{
    const ChangeList changes =
        Diff(Tree(R"({"name": "EFFECT_ADJUSTER"})"),
             Tree(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"chromaRadius": 100, "lumaRadius": 4}})"));
    EXPECT_EQ(Lines(changes), "smartBlur/lumaRadius: 100 -> 4\n");
    PropertyTree other =
        Tree(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 100.0, "later": 1}, "x": {}, "implName": "default"})");
    Apply(changes, other);
    EXPECT_EQ(WriteJson(other),
              R"({"implName":"default","name":"EFFECT_ADJUSTER","smartBlur":{"later":1,"lumaRadius":4},"x":{}})");
    PropertyTree without = Tree(R"({"name": "EFFECT_ADJUSTER", "x": {}})");
    Apply(changes, without);
    EXPECT_TRUE(
        Diff(without, Tree(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"chromaRadius": 100, "lumaRadius": 4}, "x": {}})"))
            .empty());
    Apply(Inverse(changes), without);
    EXPECT_EQ(WriteJson(without), R"({"name":"EFFECT_ADJUSTER","x":{}})");
}

TEST(Apply, ReplacesTheDocument)
{
    const PropertyTree one = Tree(R"({"name": "EFFECT_ACID", "radius": 1})");
    const PropertyTree list = Tree(R"([{"name": "EFFECT_ACID"}])");
    PropertyTree tree = one;
    Apply(Diff(one, list), tree);
    EXPECT_EQ(tree, list);
    Apply(Inverse(Diff(one, list)), tree);
    EXPECT_EQ(tree, one);
    EXPECT_THROW(Apply(Inverse(Diff(one, list)), tree), ConflictError);
}

// An effect that does not change stays the same object; one that does becomes another, so that what a read keeps, such as the
// helper settings, is not kept.
TEST(Apply, ChangesEffects)
{
    using PhotoCore::VibranceSettings;
    const auto first = std::make_shared<VibranceSettings>();
    const auto second = std::make_shared<VibranceSettings>();
    second->HelperSetting().SetUndoSet(true);
    std::vector<std::shared_ptr<PhotoCore::IEffectSettings>> effects{first, second, nullptr};
    const ChangeList changes =
        Diff(Tree(R"([{"name": "EFFECT_VIBRANCE"}, {"name": "EFFECT_VIBRANCE", "helperSettings": {"undoSet": true}}, null])"),
             Tree(R"([{"name": "EFFECT_VIBRANCE"}, {"name": "EFFECT_VIBRANCE"}, null, {"name": "EFFECT_ACID"}])"));
    Apply(changes, effects);
    ASSERT_EQ(effects.size(), 4u);
    EXPECT_EQ(effects[0], first);
    EXPECT_NE(effects[1], second);
    EXPECT_TRUE(second->GetHelperSettings().GetUndoSet());
    EXPECT_FALSE(effects[1]->GetHelperSettings().GetUndoSet());
    EXPECT_EQ(effects[2], nullptr);
    EXPECT_EQ(effects[3]->GetClassId(), "EFFECT_ACID");
    EXPECT_THROW(Apply(changes, effects), ConflictError);
    Apply(Inverse(changes), effects);
    EXPECT_EQ(effects.size(), 3u);
    EXPECT_TRUE(effects[1]->GetHelperSettings().GetUndoSet());
}

// Every order of up to seven elements is reached, with as few moves as can be.
TEST(ListMoves, LeadToTheOrder)
{
    for (std::size_t size = 0; size != 8; ++size)
    {
        std::vector<std::size_t> order(size);
        std::iota(order.begin(), order.end(), std::size_t{0});
        do
        {
            std::vector<std::size_t> list(size);
            std::iota(list.begin(), list.end(), std::size_t{0});
            const std::vector<ListMove> moves = MovesTo(order);
            for (const ListMove& move : moves)
            {
                ASSERT_EQ(list[move.from], order[move.element]);
                list.erase(list.begin() + static_cast<std::ptrdiff_t>(move.from));
                list.insert(list.begin() + static_cast<std::ptrdiff_t>(move.to), order[move.element]);
            }
            ASSERT_EQ(list, order);
            std::size_t longest = 0; // part that ascends
            for (unsigned part = 0; part != 1U << size; ++part)
            {
                std::vector<std::size_t> kept;
                for (std::size_t index = 0; index != size; ++index)
                {
                    if ((part >> index & 1U) != 0)
                    {
                        kept.push_back(order[index]);
                    }
                }
                longest = std::ranges::is_sorted(kept) ? std::max(longest, kept.size()) : longest;
            }
            ASSERT_LE(moves.size(), size - longest);
        } while (std::next_permutation(order.begin(), order.end()));
    }
}

} // namespace
