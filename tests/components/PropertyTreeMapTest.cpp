#include "PropertyTree/PropertyTree.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <stdexcept>
#include <type_traits>

namespace
{

using Ombrel::PropertyTree;
using Map = PropertyTree::Map;

std::vector<std::string> KeysOf(const Map& map)
{
    std::vector<std::string> keys;
    for (const auto& [key, child] : map)
    {
        keys.push_back(key);
    }
    return keys;
}

TEST(PropertyTreeMap, IsOrderedByBytesAndShorterFirst)
{
    Map map;
    for (const char* key : {"b", "\xc3\xa4", "a", "ab", "B", "aa", ""})
    {
        map[key];
    }
    EXPECT_EQ(KeysOf(map), (std::vector<std::string>{"", "B", "a", "aa", "ab", "b", "\xc3\xa4"}));
}

TEST(PropertyTreeMap, KeysMayHoldZeros)
{
    using namespace std::string_view_literals;
    Map map;
    map["a\0b"sv] = 1;
    map["a"] = 2;
    EXPECT_EQ(map.size(), 2u);
    EXPECT_EQ(map.at("a\0b"sv), PropertyTree(1));
    EXPECT_FALSE(map.contains("a\0"sv));
}

TEST(PropertyTreeMap, FindsWithoutMakingAString)
{
    Map map;
    map["radius"] = 3;
    const std::string_view text = "radiusAndMore";
    EXPECT_NE(map.find(text.substr(0, 6)), map.end());
    EXPECT_EQ(std::as_const(map).find(text), map.cend());
    EXPECT_EQ(map.count("radius"), 1u);
    EXPECT_EQ(map.count("sigma"), 0u);
}

TEST(PropertyTreeMap, AtNamesNoKeyThatIsMissing)
{
    const Map map;
    try
    {
        map.at("radius");
        FAIL();
    }
    catch (const std::out_of_range& failure)
    {
        EXPECT_STREQ(failure.what(), "invalid map<K, T> key");
    }
    Map changeable;
    EXPECT_THROW(changeable.at("radius"), std::out_of_range);
    EXPECT_TRUE(changeable.empty());
}

TEST(PropertyTreeMap, TryEmplaceLeavesWhatIsThere)
{
    Map map;
    EXPECT_TRUE(map.try_emplace("a", PropertyTree(1)).second);
    PropertyTree second("kept");
    const auto [position, isNew] = map.try_emplace("a", std::move(second));
    EXPECT_FALSE(isNew);
    EXPECT_EQ(position->second, PropertyTree(1));
    EXPECT_EQ(second, PropertyTree("kept"));

    EXPECT_TRUE(map.insert({"b", 2}).second);
    EXPECT_FALSE(map.insert({"b", 3}).second);
    EXPECT_EQ(map.at("b"), PropertyTree(2));
}

TEST(PropertyTreeMap, EntriesNeverMove)
{
    Map map;
    const std::string* key = &map.try_emplace("m", PropertyTree(1)).first->first;
    PropertyTree* child = &map.at("m");
    for (int i = 0; i < 1000; ++i)
    {
        map[std::to_string(i)] = i;
    }
    for (int i = 0; i < 1000; i += 2)
    {
        map.erase(std::to_string(i));
    }
    EXPECT_EQ(&map.at("m"), child);
    EXPECT_EQ(&map.find("m")->first, key);

    Map moved = std::move(map);
    EXPECT_EQ(&moved.at("m"), child);
    EXPECT_EQ(*child, PropertyTree(1));
}

TEST(PropertyTreeMap, ErasingGivesTheNext)
{
    Map map;
    map["a"] = 1;
    map["b"] = 2;
    map["c"] = 3;
    const auto next = map.erase(map.find("b"));
    EXPECT_EQ(next->first, "c");
    const auto end = map.erase(next);
    EXPECT_EQ(end, map.end());
    EXPECT_EQ(map.erase("a"), 1u);
    EXPECT_EQ(map.erase("a"), 0u);
    EXPECT_TRUE(map.empty());
}

TEST(PropertyTreeMap, DoesNotThrowWhereItPromisesSo)
{
    static_assert(std::is_nothrow_move_constructible_v<Map>);
    static_assert(std::is_nothrow_move_assignable_v<Map>);
    static_assert(std::is_nothrow_destructible_v<Map>);
    static_assert(noexcept(std::declval<Map&>().swap(std::declval<Map&>())));
    static_assert(noexcept(std::declval<Map&>().erase(std::declval<Map::iterator>())));
    static_assert(noexcept(std::declval<Map&>().erase(std::string_view())));
    static_assert(noexcept(std::declval<Map&>().clear()));
}

TEST(PropertyTreeMap, IteratesBothWays)
{
    Map map;
    map["a"] = 1;
    map["b"] = 2;
    auto position = map.end();
    EXPECT_EQ((--position)->first, "b");
    EXPECT_EQ((position--)->first, "b");
    EXPECT_EQ((position++)->first, "a");
    EXPECT_EQ(map.cbegin()->first, "a");
    Map::const_iterator constant = position;
    EXPECT_EQ(constant->first, "b");
    EXPECT_EQ(constant, map.find("b"));
    static_assert(std::is_same_v<decltype(*std::as_const(map).begin()), const Map::value_type&>);
}

TEST(PropertyTreeMap, CopiesAreDeepAndAssignmentReplaces)
{
    Map map;
    map["a"]["b"] = 1;
    Map copy = map;
    copy.at("a")["b"] = 2;
    EXPECT_EQ(map.at("a")["b"], PropertyTree(1));

    Map target;
    target["z"] = 9;
    target = map;
    EXPECT_EQ(target, map);
    EXPECT_FALSE(target == copy);
    target = std::move(copy);
    EXPECT_EQ(target.at("a")["b"], PropertyTree(2));
    EXPECT_EQ(target.size(), 1u);

    Map otherKey;
    otherKey["b"] = map.at("a");
    EXPECT_FALSE(otherKey == map);
    EXPECT_FALSE(Map() == map);

    Map& self = target;
    target = self;
    EXPECT_EQ(target.size(), 1u);
    target.clear();
    EXPECT_TRUE(target.empty());
}

// The same random steps on the map and on std::map must leave the same entries.
TEST(PropertyTreeMap, BehavesAsStdMap)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round)
    {
        Map map;
        std::map<std::string, std::int64_t, std::less<>> expected;
        for (int step = 0; step < 2000; ++step)
        {
            const std::string key = std::to_string(random() % 300);
            switch (random() % 4)
            {
            case 0:
                EXPECT_EQ(map.erase(key), expected.erase(key));
                break;
            case 1:
                EXPECT_EQ(map.try_emplace(key, PropertyTree(step)).second, expected.try_emplace(key, step).second);
                break;
            case 2:
                map[key] = step;
                expected[key] = step;
                break;
            default:
                EXPECT_EQ(map.contains(key), expected.contains(key));
                break;
            }
        }
        ASSERT_EQ(map.size(), expected.size());
        auto position = map.begin();
        for (const auto& [key, value] : expected)
        {
            EXPECT_EQ(position->first, key);
            EXPECT_EQ(position->second, PropertyTree(value));
            ++position;
        }
        EXPECT_EQ(position, map.end());
    }
}

} // namespace
