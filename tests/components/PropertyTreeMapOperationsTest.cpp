#include "PropertyTree/PropertyTree.h"
#include "support/FailingMemory.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

// What else a map does as std::map does it. That the result is the same is compared by the model test as well.

namespace
{

using Ombrel::PropertyTree;
using Support::AllocationsOf;
using Map = PropertyTree::Map;

constexpr const char* LONG_KEY = "a key that does not fit into a string";

std::string TextOf(const Map& map)
{
    std::string text;
    for (const auto& [key, child] : map)
    {
        text += key + '=' + testing::PrintToString(child) + ' ';
    }
    return text;
}

// Not in key order.
Map Sample()
{
    Map map;
    for (const char* key : {"7", "3", LONG_KEY, "5"})
    {
        map[key].append("a text that does not fit into a string either");
    }
    return map;
}

TEST(PropertyTreeMapOperations, InsertOrAssignReplaces)
{
    Map map;
    const auto [first, isFirstNew] = map.insert_or_assign("b", 1);
    EXPECT_TRUE(isFirstNew && first == map.begin());
    const PropertyTree text("text");
    const auto [second, isSecondNew] = map.insert_or_assign("b", text);
    EXPECT_TRUE(!isSecondNew && second == first);
    map.insert_or_assign("a", 2);
    EXPECT_EQ(TextOf(map), "a=2 b=\"text\" ");
    map["b"] = PropertyTree();
    map["b"]["c"]["d"] = 3;
    map.insert_or_assign("b", std::move(map["b"]["c"])); // from within what it replaces
    EXPECT_EQ(TextOf(map), "a=2 b={\"d\": 3} ");
    map.insert_or_assign("c", map["b"]["d"]);
    EXPECT_EQ(TextOf(map), "a=2 b={\"d\": 3} c=3 ");
    PropertyTree name("name");
    map.insert_or_assign(name.getScalar().toString(), std::move(name)); // the key is a part of the value
    EXPECT_EQ(TextOf(map), "a=2 b={\"d\": 3} c=3 name=\"name\" ");
}

TEST(PropertyTreeMapOperations, EmplaceTakesWhatMakesAnEntry)
{
    Map map;
    EXPECT_TRUE(map.emplace("c", 1).second);
    EXPECT_TRUE(map.emplace(std::string("b"), PropertyTree("text")).second);
    EXPECT_TRUE(map.emplace(std::string_view("d"), 0.5).second);
    EXPECT_TRUE(map.emplace(std::pair("a", true)).second);
    EXPECT_TRUE(map.emplace(std::piecewise_construct, std::tuple("e"), std::tuple()).second);
    EXPECT_TRUE(map.emplace().second);
    const auto [position, isNew] = map.emplace("c", 2);
    EXPECT_TRUE(!isNew && position->first == "c");
    EXPECT_EQ(TextOf(map), "=null a=true b=\"text\" c=1 d=0.5 e=null ");
}

TEST(PropertyTreeMapOperations, ARangeIsInserted)
{
    const std::map<std::string, int> source{{"a", 1}, {"b", 2}, {"d", 4}};
    Map map;
    map["b"] = 7;
    map.insert(source.begin(), source.end());
    EXPECT_EQ(TextOf(map), "a=1 b=7 d=4 ");
    Map other;
    other["c"] = 3;
    other.insert(std::as_const(map).begin(), std::as_const(map).find("d"));
    EXPECT_EQ(TextOf(other), "a=1 b=7 c=3 ");
}

TEST(PropertyTreeMapOperations, ARangeIsMovedFromIfItsIteratorsMove)
{
    std::map<std::string, PropertyTree> source;
    source["a"] = "text";
    source["b"] = "kept";
    Map map;
    map["b"] = 1;
    map.insert(std::make_move_iterator(source.begin()), std::make_move_iterator(source.end()));
    EXPECT_EQ(TextOf(map), "a=\"text\" b=1 ");
    EXPECT_TRUE(source["a"].isNull());
    EXPECT_EQ(source["b"].getScalar().toString(), "kept");
    Map other;
    other.insert(std::make_move_iterator(map.begin()), std::make_move_iterator(map.end()));
    EXPECT_EQ(TextOf(other), "a=\"text\" b=1 ");
    EXPECT_TRUE(map["a"].isNull());
}

TEST(PropertyTreeMapOperations, ARangeIsErased)
{
    Map map;
    for (const char* key : {"a", "b", "c", "d", "e"})
    {
        map[key] = 1;
    }
    EXPECT_EQ(map.erase(map.find("b"), map.find("b"))->first, "b");
    EXPECT_EQ(map.erase(map.find("b"), map.find("d"))->first, "d");
    EXPECT_EQ(TextOf(map), "a=1 d=1 e=1 ");
    EXPECT_EQ(map.erase(map.find("e"), map.end()), map.end());
    EXPECT_EQ(map.erase(map.cbegin(), map.cend()), map.end());
    EXPECT_TRUE(map.empty());
    EXPECT_EQ(Map().erase(Map().begin(), Map().end()), Map().end());
}

TEST(PropertyTreeMapOperations, BoundsAreWhereAKeyIsOrWouldBe)
{
    Map map;
    map.reserve(4);
    for (const char* key : {"a", "c", "e", "g"})
    {
        map[key];
    }
    map.erase("c"); // whose gap is not an entry
    EXPECT_EQ(map.lower_bound("")->first, "a");
    EXPECT_EQ(map.lower_bound("a")->first, "a");
    EXPECT_EQ(map.upper_bound("a")->first, "e");
    EXPECT_EQ(map.lower_bound("b")->first, "e");
    EXPECT_EQ(map.lower_bound("c")->first, "e");
    EXPECT_EQ(map.upper_bound("c")->first, "e");
    EXPECT_EQ(map.lower_bound("g")->first, "g");
    EXPECT_EQ(map.upper_bound("g"), map.end());
    EXPECT_EQ(map.lower_bound("h"), map.end());
    EXPECT_EQ(map.equal_range("e"), std::pair(map.find("e"), map.find("g")));
    const auto e = std::as_const(map).find("e");
    EXPECT_EQ(std::as_const(map).equal_range("d"), std::pair(e, e));
    Map empty;
    EXPECT_EQ(empty.lower_bound("a"), empty.end());
    EXPECT_EQ(empty.upper_bound("a"), empty.end());
    EXPECT_EQ(empty.equal_range("a"), std::pair(empty.end(), empty.end()));
}

TEST(PropertyTreeMapOperations, EraseIfIsFoundWithoutItsNamespace)
{
    Map map;
    for (int i = 0; i < 6; ++i)
    {
        map[std::to_string(i)] = i;
    }
    EXPECT_EQ(erase_if(map, [](const auto& entry) { return entry.second.getScalar().toInt() % 2 == 0; }), 3u);
    EXPECT_EQ(TextOf(map), "1=1 3=3 5=5 ");
    EXPECT_EQ(erase_if(map, [](const auto& entry) { return entry.first == "7"; }), 0u);
    EXPECT_EQ(erase_if(map, [](const auto&) { return true; }), 3u);
    EXPECT_TRUE(map.empty());
}

// Each way to insert a value that itself takes memory, while each allocation in turn is refused.
TEST(PropertyTreeMapOperations, EveryFailedInsertLeavesAllAsItWas)
{
    const PropertyTree value(std::string(100, 'v'));
    using Insert = void (*)(Map & map, const char* key, const PropertyTree& value);
    const Insert ways[] = {
        [](Map& map, const char* key, const PropertyTree& tree) { map.try_emplace(key, tree); },
        [](Map& map, const char* key, const PropertyTree& tree) { map.insert_or_assign(key, tree); },
        [](Map& map, const char* key, const PropertyTree& tree) { map.insert_or_assign(key, PropertyTree(tree)); },
        [](Map& map, const char* key, const PropertyTree& tree) { map.emplace(key, tree); },
        [](Map& map, const char* key, const PropertyTree& tree) { map.emplace(std::string(key), PropertyTree(tree)); },
        [](Map& map, const char* key, const PropertyTree& tree) {
            map.insert({key, tree});
        },
    };
    for (const Insert insert : ways)
    {
        for (const char* key : {"0 comes early and is no short text", "5", LONG_KEY})
        {
            const Map sample = Sample();
            std::size_t failures = 0;
            for (bool isDone = false; !isDone; ++failures)
            {
                Map map = sample;
                try
                {
                    const Support::FailingMemory failing(failures, Support::FailingMemory::Mode::Once);
                    insert(map, key, value);
                    isDone = true;
                }
                catch (const std::bad_alloc&)
                {
                    ASSERT_EQ(map, sample) << key << ' ' << failures;
                }
            }
            EXPECT_GE(failures, 1u);
        }
    }
}

TEST(PropertyTreeMapOperations, AReplacedValueIsTakenAndACopyIsMadeOnlyIfItIsNeeded)
{
    Map map = Sample();
    PropertyTree value(std::string(100, 'v'));
    EXPECT_EQ(AllocationsOf([&] { EXPECT_FALSE(map.try_emplace("5", value).second); }), 0u);
    EXPECT_EQ(AllocationsOf([&] { EXPECT_FALSE(map.emplace("5", value).second); }), 0u);
    EXPECT_EQ(AllocationsOf([&] { EXPECT_FALSE(map.insert_or_assign("5", std::move(value)).second); }), 0u);
    EXPECT_EQ(map.at("5"), PropertyTree(std::string(100, 'v')));
}

TEST(PropertyTreeMapOperations, LookingForAKeyTakesNone)
{
    PropertyTree tree;
    tree.convertToMap();
    tree.getMap() = Sample();
    const Map& map = tree.getMap();
    constexpr const char* literal = LONG_KEY;
    const std::string text = literal;
    EXPECT_EQ(AllocationsOf(
                  [&]
                  {
                      const std::string_view view = text;
                      EXPECT_EQ(&tree[literal], &tree[text]);
                      EXPECT_EQ(&tree[view], &std::as_const(tree)[literal]);
                      EXPECT_TRUE(tree.contains(literal) && map.contains(view) && map.count(text) == 1);
                      EXPECT_TRUE(map.find(literal) == map.lower_bound(text));
                      EXPECT_TRUE(map.upper_bound(literal) == map.equal_range(view).second);
                  }),
              0u);
}

// What was erased before stays erased, as with std::erase_if.
TEST(PropertyTreeMapOperations, EraseIfStopsWhereThePredicateThrows)
{
    Map map;
    for (const char* key : {"a", "b", "c", "d", "e"})
    {
        map[key] = 1;
    }
    const auto isErased = [](const Map::value_type& entry)
    {
        if (entry.first == "d")
        {
            throw std::runtime_error("d");
        }
        return entry.first != "b";
    };
    EXPECT_THROW(erase_if(map, isErased), std::runtime_error);
    EXPECT_EQ(map.size(), 3u);
    EXPECT_TRUE(!map.contains("a") && map.contains("b") && !map.contains("c") && map.contains("d"));
}

} // namespace
