#include "PropertyTree/PropertyTree.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <string>
#include <vector>

// Iterators live as long as those of std::map.

namespace
{

using Ombrel::PropertyTree;
using Map = PropertyTree::Map;

// Of one length, so that they have the order of the numbers.
std::string KeyOf(int number)
{
    return "key " + std::to_string(10'000 + number);
}

std::vector<std::string> KeysOf(const Map& map)
{
    std::vector<std::string> keys;
    for (const auto& [key, child] : map)
    {
        keys.push_back(key);
    }
    return keys;
}

Map RisingMap(int count)
{
    Map map;
    map.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        map[KeyOf(i)] = i;
    }
    return map;
}

// With an index from the second entry on.
Map FallingMap(int count)
{
    Map map;
    for (int i = count - 1; i >= 0; --i)
    {
        map[KeyOf(i)] = i;
    }
    return map;
}

TEST(PropertyTreeMapIterator, EraseWithItPlusPlusErasesWhatIsMeant)
{
    for (const int count : {2, 8, 32, 33, 600, 3000})
    {
        for (Map map : {RisingMap(count), FallingMap(count)})
        {
            for (auto position = map.begin(); position != map.end();)
            {
                if (position->second.getScalar().toInt() % 2 == 0)
                {
                    map.erase(position++);
                }
                else
                {
                    ++position;
                }
            }
            ASSERT_EQ(map.size(), static_cast<std::size_t>(count / 2)) << count;
            int expected = 1;
            for (const auto& [key, child] : map)
            {
                EXPECT_EQ(key, KeyOf(expected));
                expected += 2;
            }
        }
    }
}

TEST(PropertyTreeMapIterator, EraseWithItPlusPlusMayEraseAll)
{
    for (const int count : {1, 2, 8, 32, 33, 600})
    {
        for (Map map : {RisingMap(count), FallingMap(count)})
        {
            const auto end = map.end();
            int steps = 0;
            for (auto position = map.begin(); position != end; ++steps)
            {
                map.erase(position++);
            }
            EXPECT_EQ(steps, count);
            EXPECT_TRUE(map.empty());
            EXPECT_EQ(map.end(), end);
        }
    }
}

TEST(PropertyTreeMapIterator, EndStaysTheEnd)
{
    Map map;
    const auto end = map.end();
    map["b"] = 1;
    EXPECT_EQ(map.end(), end);
    EXPECT_EQ(std::prev(end)->first, "b");
    map["c"] = 2; // behind the last
    EXPECT_EQ(std::prev(end)->first, "c");
    EXPECT_EQ(std::next(map.begin(), 2), end);
    map["a"] = 3; // before all, which makes an index
    EXPECT_EQ(std::prev(end)->first, "c");
    EXPECT_EQ(std::prev(end, 3)->first, "a");
    map.erase("c");
    EXPECT_EQ(std::prev(end)->first, "b");
    map.erase(map.begin(), end);
    EXPECT_EQ(map.begin(), end);
    map.reserve(100);
    EXPECT_EQ(map.begin(), end);
    map["d"] = 4;
    EXPECT_EQ(std::prev(end)->first, "d");
}

// An end that a step has led to is no other than end() itself.
TEST(PropertyTreeMapIterator, AnEndThatWasSteppedToStaysTheEnd)
{
    Map map = RisingMap(1);
    auto end = map.begin();
    ++end;
    map.erase(map.begin());
    EXPECT_EQ(end, map.end());
    map.reserve(50);
    map["z"] = 1;
    EXPECT_EQ(std::prev(end)->first, "z");
    EXPECT_EQ(std::next(map.begin()), end);
}

// Step by step through all that can become of a map's inside.
TEST(PropertyTreeMapIterator, SurvivesEveryChange)
{
    Map map;
    map.reserve(4);
    map["d"] = 1;
    map["h"] = 2;
    const auto d = map.find("d");
    const auto h = map.find("h");
    const auto expectNeighbours = [&](const std::string& before, const std::string& between, const std::string& behind)
    {
        EXPECT_EQ(before, d == map.begin() ? "" : std::prev(d)->first);
        EXPECT_EQ(between, std::next(d)->first);
        EXPECT_EQ(between == "h" ? "d" : between, std::prev(h)->first);
        EXPECT_EQ(behind, std::next(h) == map.end() ? "" : std::next(h)->first);
    };
    expectNeighbours("", "h", "");
    map["l"] = 3; // in the next slot
    expectNeighbours("", "h", "l");
    map["p"] = 4;
    map.erase("l"); // leaves a gap
    expectNeighbours("", "h", "p");
    map["f"] = 5; // in between, which makes an index
    expectNeighbours("", "f", "p");
    map["a"] = 6;
    expectNeighbours("a", "f", "p");
    map.reserve(400); // widens the leaf
    expectNeighbours("a", "f", "p");
    for (int i = 0; i < 2000; ++i) // splits leaves
    {
        map[(i % 2 == 0 ? "b" : "j") + KeyOf(i)] = i;
    }
    expectNeighbours("b" + KeyOf(1998), "f", "j" + KeyOf(1));
    for (int i = 0; i < 2000; ++i) // joins leaves
    {
        map.erase((i % 2 == 0 ? "b" : "j") + KeyOf(i));
    }
    expectNeighbours("a", "f", "p");
    map.erase("f");
    expectNeighbours("a", "h", "p");
    map.erase("a");
    map.erase("p");
    expectNeighbours("", "h", "");
}

TEST(PropertyTreeMapIterator, GoesWithTheEntriesWhenTheMapIsMovedOrSwapped)
{
    for (const Map& sample : {RisingMap(3), FallingMap(3)})
    {
        Map map = sample;
        const auto middle = map.find(KeyOf(1));
        Map moved = std::move(map);
        EXPECT_EQ(std::prev(middle), moved.begin());
        EXPECT_EQ(std::next(middle, 2), moved.end());
        Map swapped;
        swapped["other"] = 1;
        const auto other = swapped.begin();
        swap(moved, swapped);
        EXPECT_EQ(std::next(middle)->first, KeyOf(2));
        EXPECT_EQ(std::next(middle, 2), swapped.end());
        EXPECT_EQ(std::next(other), moved.end());
        EXPECT_EQ(std::prev(std::next(middle, 2))->first, KeyOf(2));
        moved = std::move(swapped);
        EXPECT_EQ(std::next(middle, 2), moved.end());
        EXPECT_EQ(std::prev(moved.end())->first, KeyOf(2));
        EXPECT_EQ(moved.erase(middle)->first, KeyOf(2));

        PropertyTree tree;
        tree["map"].convertToMap();
        tree["map"].getMap() = sample;
        const auto first = tree["map"].getMap().begin();
        PropertyTree list;
        list.append(std::move(tree["map"]));
        list.append(1);
        EXPECT_EQ(std::next(first, 3), list.getList()[0].getMap().end());
        EXPECT_EQ(std::prev(list.getList()[0].getMap().end())->first, KeyOf(2));
    }
}

TEST(PropertyTreeMapIterator, IsWhatAlgorithmsAskFor)
{
    static_assert(std::bidirectional_iterator<Map::iterator> && std::bidirectional_iterator<Map::const_iterator>);
    static_assert(std::is_nothrow_copy_constructible_v<Map::iterator> && std::is_trivially_copyable_v<Map::iterator>);
    static_assert(std::is_convertible_v<Map::iterator, Map::const_iterator>);
    static_assert(!std::is_convertible_v<Map::const_iterator, Map::iterator>);
    EXPECT_EQ(Map::iterator(), Map::iterator());
    EXPECT_EQ(Map::const_iterator(), Map::iterator());
}

TEST(PropertyTreeMapIterator, StepsBackwards)
{
    for (Map map : {RisingMap(3), FallingMap(3), RisingMap(40)})
    {
        map.erase(KeyOf(1));
        std::vector<std::string> keys = KeysOf(map);
        std::vector<std::string> backwards;
        for (auto position = map.rbegin(); position != map.rend(); ++position)
        {
            backwards.push_back(position->first);
            position->second = 7;
        }
        EXPECT_EQ(std::vector<std::string>(keys.rbegin(), keys.rend()), backwards);
        EXPECT_EQ(map.crbegin()->second, PropertyTree(7));
        EXPECT_EQ(std::distance(map.crbegin(), map.crend()), std::ssize(keys));
        EXPECT_EQ(std::as_const(map).rbegin()->first, keys.back());
        EXPECT_EQ(std::prev(std::as_const(map).rend())->first, keys.front());
    }
    EXPECT_EQ(Map().rbegin().base(), Map().rend().base());
}

} // namespace
