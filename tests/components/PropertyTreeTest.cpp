#include "PropertyTree/PropertyTree.h"
#include "support/FailingMemory.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <concepts>
#include <stdexcept>
#include <type_traits>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PropertyTreeScalar;
using Support::List;
using Support::Map;

template <class Call> std::string RefusalOf(Call call)
{
    try
    {
        call();
    }
    catch (const std::invalid_argument& failure)
    {
        return failure.what();
    }
    return "nothing was refused";
}

TEST(PropertyTree, IsInOneOfFourStates)
{
    const PropertyTree null;
    const PropertyTree scalar(5);
    const PropertyTree map = Map({});
    const PropertyTree list = List({});
    EXPECT_TRUE(null.isNull() && !null.isScalar() && !null.isMap() && !null.isList());
    EXPECT_TRUE(!scalar.isNull() && scalar.isScalar() && !scalar.isMap() && !scalar.isList());
    EXPECT_TRUE(!map.isNull() && !map.isScalar() && map.isMap() && !map.isList());
    EXPECT_TRUE(!list.isNull() && !list.isScalar() && !list.isMap() && list.isList());
}

TEST(PropertyTree, TakesAnythingThatMakesAScalar)
{
    PropertyTree tree;
    tree["a"] = 5;
    tree["b"] = 0.5;
    tree["c"] = "text";
    tree["d"] = true;
    tree["e"] = PropertyTreeScalar(7);
    EXPECT_EQ(tree["a"].getScalar().toInt(), 5);
    EXPECT_EQ(tree["b"].getScalar().toDouble(), 0.5);
    EXPECT_EQ(tree["c"].getScalar().toString(), "text");
    EXPECT_EQ(tree["d"].getScalar().kind(), PropertyTreeScalar::Kind::Bool);
    EXPECT_EQ(tree["e"].getScalar().toInt(), 7);
    tree["f"] = std::string_view("view");
    tree["g"] = std::vector<bool>{true}[0];
    tree["h"] = std::true_type();
    EXPECT_EQ(tree["f"], PropertyTree("view"));
    EXPECT_EQ(tree["g"], PropertyTree(true));
    EXPECT_EQ(tree["h"], PropertyTree(true));
    EXPECT_EQ(PropertyTree(std::vector<bool>{false}[0]), PropertyTree(false));
    EXPECT_EQ(PropertyTree(PropertyTreeScalar("a text")).getScalar().toString(), "a text");
}

TEST(PropertyTree, IndexingAFreshTreeMakesAMapWithANullChild)
{
    PropertyTree tree;
    tree["x"];
    EXPECT_EQ(tree.getMap().size(), 1u);
    EXPECT_TRUE(tree.getMap().at("x").isNull());
}

TEST(PropertyTree, ConvertToMapKeepsEntries)
{
    PropertyTree tree = Map({{"radius", 3}});
    tree.convertToMap();
    EXPECT_EQ(tree, Map({{"radius", 3}}));
}

TEST(PropertyTree, ConvertingAnotherStateStartsEmpty)
{
    for (PropertyTree tree : {PropertyTree(), PropertyTree(5), List({1, 2})})
    {
        tree.convertToMap();
        EXPECT_EQ(tree, Map({}));
    }
    for (PropertyTree tree : {PropertyTree(), PropertyTree(5), Map({{"a", 1}})})
    {
        tree.convertToList();
        EXPECT_EQ(tree, List({}));
    }
    PropertyTree list = List({1});
    list.convertToList();
    EXPECT_EQ(list, List({1}));
}

TEST(PropertyTree, MakingAContainerStartsEmptyWhateverItWas)
{
    for (PropertyTree tree : {PropertyTree(), PropertyTree("text"), List({1, 2}), Map({{"a", 1}})})
    {
        tree.makeMap(2)["b"] = 1;
        EXPECT_EQ(tree, Map({{"b", 1}}));
    }
    for (PropertyTree tree : {PropertyTree(), PropertyTree("text"), List({1, 2}), Map({{"a", 1}})})
    {
        PropertyTree::List& list = tree.makeList(2);
        EXPECT_GE(list.capacity(), 2u);
        list.emplace_back(7);
        EXPECT_EQ(tree, List({7}));
    }
}

TEST(PropertyTree, IsNoLargerThanAScalar)
{
    static_assert(sizeof(PropertyTree) == sizeof(PropertyTreeScalar) && sizeof(PropertyTree::Map) == sizeof(void*));
    const PropertyTree tree("text");
    EXPECT_EQ(static_cast<const void*>(&tree.getScalar()), &tree);
}

TEST(PropertyTree, CopiesAreDeep)
{
    const PropertyTree first = Map({{"x", 1}});
    PropertyTree copy = first;
    copy["x"] = 2;
    EXPECT_EQ(first, Map({{"x", 1}}));
    EXPECT_EQ(copy, Map({{"x", 2}}));
}

TEST(PropertyTree, AMovedFromTreeIsNull)
{
    PropertyTree tree = Map({{"x", 1}});
    const PropertyTree moved = std::move(tree);
    EXPECT_TRUE(tree.isNull());
    EXPECT_EQ(moved, Map({{"x", 1}}));
    static_assert(std::is_nothrow_move_constructible_v<PropertyTree> && std::is_nothrow_move_assignable_v<PropertyTree>);
}

TEST(PropertyTree, IsSwappedAsAlgorithmsDo)
{
    PropertyTree map = Map({{"x", 1}});
    PropertyTree text("a text that does not fit into a string itself");
    std::ranges::swap(map, text);
    EXPECT_EQ(map, PropertyTree("a text that does not fit into a string itself"));
    EXPECT_EQ(text, Map({{"x", 1}}));
}

TEST(PropertyTree, ContainsLooksIntoMapsOnly)
{
    EXPECT_TRUE(Map({{"a", 1}}).contains("a"));
    EXPECT_FALSE(Map({{"a", 1}}).contains("b"));
    for (const PropertyTree& tree : {PropertyTree(), PropertyTree(5), List({1})})
    {
        EXPECT_FALSE(tree.contains("a"));
    }
}

TEST(PropertyTree, ConstIndexNeedsTheKey)
{
    const PropertyTree tree = Map({{"a", 1}});
    EXPECT_EQ(tree["a"], PropertyTree(1));
    try
    {
        tree["b"];
        FAIL();
    }
    catch (const std::out_of_range& failure)
    {
        EXPECT_STREQ(failure.what(), "invalid map<K, T> key");
    }
}

TEST(PropertyTree, WrongStatesNameBoth)
{
    PropertyTree null;
    PropertyTree scalar(5);
    PropertyTree list = List({});
    PropertyTree map = Map({});
    const PropertyTree constant;
    EXPECT_EQ(RefusalOf([&] { null.getMap(); }), "tree: expected a map, found null");
    EXPECT_EQ(RefusalOf([&] { constant.getMap(); }), "tree: expected a map, found null");
    EXPECT_EQ(RefusalOf([&] { scalar.getMap(); }), "tree: expected a map, found a scalar");
    EXPECT_EQ(RefusalOf([&] { list["a"]; }), "tree: expected a map, found a list");
    EXPECT_EQ(RefusalOf([&] { std::as_const(scalar)["a"]; }), "tree: expected a map, found a scalar");
    EXPECT_EQ(RefusalOf([&] { map.getList(); }), "tree: expected a list, found a map");
    EXPECT_EQ(RefusalOf([&] { constant.getList(); }), "tree: expected a list, found null");
    EXPECT_EQ(RefusalOf([&] { scalar.append(1); }), "tree: expected a list, found a scalar");
    EXPECT_EQ(RefusalOf([&] { map.append(1); }), "tree: expected a list, found a map");
    EXPECT_EQ(RefusalOf([&] { constant.getScalar(); }), "tree: expected a scalar, found null");
    EXPECT_EQ(RefusalOf([&] { list.getScalar(); }), "tree: expected a scalar, found a list");
    EXPECT_EQ(scalar, PropertyTree(5));
}

TEST(PropertyTree, AppendAddsAtTheEnd)
{
    PropertyTree tree;
    tree.append(1);
    tree.append("two");
    EXPECT_EQ(tree, List({1, "two"}));
    tree.append(tree);
    EXPECT_EQ(tree, List({1, "two", List({1, "two"})}));
}

// What the header names as safe where a list is to become a part of itself.
TEST(PropertyTree, AListIsReplacedByAListInsideIt)
{
    const std::string text = "a text that does not fit into the string itself";
    const PropertyTree sample = List({List({text, 2}), 3, text});
    const PropertyTree expected = List({text, 2});
    PropertyTree tree = sample;
    tree = tree.getList()[0];
    EXPECT_EQ(tree, expected);
    tree = sample;
    tree = std::move(tree.getList()[0]);
    EXPECT_EQ(tree, expected);
    tree = sample;
    PropertyTree::List& copied = tree.getList();
    copied = PropertyTree::List(copied[0].getList());
    EXPECT_EQ(tree, expected);
    tree = sample;
    PropertyTree::List& moved = tree.getList();
    PropertyTree::List inner = std::move(moved[0].getList());
    moved = std::move(inner);
    EXPECT_EQ(tree, expected);
}

TEST(PropertyTree, SwapExchangesAnyTwoStates)
{
    const PropertyTree states[] = {PropertyTree(), 5, "a text that does not fit into the string itself", List({1}),
                                   Map({{"a", 2}})};
    for (const PropertyTree& a : states)
    {
        for (const PropertyTree& b : states)
        {
            PropertyTree left = a;
            PropertyTree right = b;
            left.swap(right);
            EXPECT_EQ(left, b);
            EXPECT_EQ(right, a);
            swap(left, right);
            EXPECT_EQ(left, a);
            EXPECT_EQ(right, b);
        }
        PropertyTree tree = a;
        tree.swap(tree);
        EXPECT_EQ(tree, a);
    }
}

// What stands deeper than recursion goes has siblings, in maps as in lists.
TEST(PropertyTree, ADeepBushIsGivenBackWhole)
{
    const std::size_t before = Support::HeldMemory();
    for (const bool isList : {true, false})
    {
        PropertyTree tree("the innermost");
        for (int level = 0; level < 100; ++level)
        {
            tree = isList ? List({level, std::move(tree), level}) : Map({{"a", level}, {"k", std::move(tree)}, {"z", level}});
        }
    }
    EXPECT_EQ(Support::HeldMemory(), before);
}

TEST(PropertyTree, EqualityLooksAtEveryLevel)
{
    const PropertyTree tree = Map({{"a", List({1, Map({{"b", "c"}})})}});
    EXPECT_EQ(tree, Map({{"a", List({1, Map({{"b", "c"}})})}}));
    EXPECT_FALSE(tree == Map({{"a", List({1, Map({{"b", "d"}})})}}));
    EXPECT_FALSE(tree == Map({{"a", List({1, Map({{"x", "c"}})})}}));
    EXPECT_FALSE(tree == Map({{"a", List({1})}}));
    EXPECT_FALSE(tree == Map({{"a", List({1, Map({{"b", "c"}})})}, {"z", 1}}));
    EXPECT_FALSE(Map({}) == List({}));
    EXPECT_FALSE(Map({}) == PropertyTree());
    EXPECT_FALSE(PropertyTree() == Map({}));
    EXPECT_FALSE(PropertyTree(5) == PropertyTree());
    EXPECT_FALSE(PropertyTree(5) == Map({}));
    EXPECT_FALSE(Map({}) == PropertyTree(5));
    EXPECT_TRUE(PropertyTree() == PropertyTree());
}

PropertyTree Nested(int depth, PropertyTree innermost, bool isList)
{
    for (int level = 0; level < depth; ++level)
    {
        innermost = isList ? List({std::move(innermost)}) : Map({{"k", std::move(innermost)}});
    }
    return innermost;
}

TEST(PropertyTree, EqualityLooksAsDeepAsATreeIs)
{
    for (const int depth : {31, 32, 33, 64, 100})
    {
        for (const bool isList : {true, false})
        {
            EXPECT_TRUE(Nested(depth, 1, isList) == Nested(depth, 1, isList)) << depth;
            EXPECT_FALSE(Nested(depth, 1, isList) == Nested(depth, 2, isList)) << depth;
            EXPECT_FALSE(Nested(depth, 1, isList) == Nested(depth + 1, 1, isList)) << depth;
        }
    }
}

} // namespace
