#include "PropertyTree/PropertyTree.h"
#include "support/FailingMemory.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <iterator>
#include <new>
#include <stdexcept>
#include <string_view>

namespace
{

using Ombrel::PropertyTree;
using Support::AllocationsOf;
using Map = PropertyTree::Map;

// A key that the library does not write itself belongs to its entry. One that fits into a string is one allocation.
// An index is one allocation and one for each of its entries.

constexpr const char* KEYS[] = {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j",
                                "k", "l", "m", "n", "o", "p", "q", "r", "s", "tail of letters"};

// So many entries with keys that differ from the first character on or far behind.
Map Sample(int count)
{
    Map map;
    for (int i = 0; i < count; ++i)
    {
        map[std::to_string(i * 7919 % count)] = i;
        map["a key that does not fit into a string " + std::to_string(i * 7919 % count)].append("a text that does not either");
    }
    return map;
}

TEST(PropertyTreeMapMemory, AnEmptyMapNeedsNone)
{
    EXPECT_EQ(AllocationsOf(
                  []
                  {
                      Map map;
                      map.reserve(0);
                      Map copy = map;
                      copy = map;
                      map.clear();
                      map.erase("a");
                      EXPECT_FALSE(copy.contains("a"));
                      EXPECT_EQ(map.begin(), map.end());
                      PropertyTree tree;
                      tree.convertToMap();
                      tree.makeMap();
                      EXPECT_TRUE(tree.getMap().empty());
                  }),
              0u);
}

TEST(PropertyTreeMapMemory, WhatIsReservedIsOneBlock)
{
    EXPECT_EQ(AllocationsOf(
                  []
                  {
                      Map map;
                      map.reserve(20);
                      for (const char* key : KEYS)
                      {
                          map[key] = 1.0;
                      }
                      EXPECT_EQ(map.size(), 20u);
                  }),
              1 + std::size(KEYS));
}

// What is erased leaves its room behind, in which the next entries stand in order again, unless an index was made.
TEST(PropertyTreeMapMemory, AnEmptiedMapReservesWhatItLacks)
{
    Map map;
    const auto fill = [&map](std::string_view keys)
    {
        map.reserve(keys.size());
        for (const char& key : keys)
        {
            map[std::string_view(&key, 1)] = 1.0;
        }
    };
    const auto empty = [&map](std::string_view keys)
    {
        for (const char& key : keys)
        {
            map.erase(std::string_view(&key, 1));
        }
        EXPECT_TRUE(map.empty());
    };
    EXPECT_EQ(AllocationsOf([&] { fill("ab"); }), 1 + 2u);
    empty("ba");
    EXPECT_EQ(AllocationsOf([&] { fill("cd"); }), 2u);
    empty("dc");
    EXPECT_EQ(AllocationsOf([&] { fill("efghijklmnopqrst"); }), 1 + 16u);
    empty("efghijklmnopqrst");
    EXPECT_EQ(AllocationsOf([&] { fill("zyx"); }), 3 + 1 + 3u);
    empty("yxz");
    EXPECT_EQ(AllocationsOf([&] { fill("uvw"); }), 1 + 3u);
    EXPECT_TRUE(map.size() == 3 && map.contains("u") && map.contains("v") && map.contains("w"));
}

TEST(PropertyTreeMapMemory, AnEntryOutOfOrderMakesAnIndexOnce)
{
    PropertyTree tree;
    EXPECT_EQ(AllocationsOf(
                  [&]
                  {
                      Map& map = tree.makeMap(4);
                      map["blur"] = 1;
                      map["radius"] = 2;
                      const PropertyTree& radius = map.at("radius");
                      tree["name"] = "EFFECT";
                      tree["alpha"] = 3;
                      EXPECT_EQ(&radius, &map.at("radius"));
                  }),
              1 + 4 + 1 + 1 + 4u); // the block, the keys, the text and the index
    EXPECT_EQ(tree, Support::Map({{"alpha", 3}, {"blur", 1}, {"name", "EFFECT"}, {"radius", 2}}));

    Map full;
    full.reserve(2);
    full["b"] = 1;
    full["c"] = 2;
    EXPECT_EQ(AllocationsOf([&] { full["a"] = 3; }), 1 + 1 + 3 + 1u); // the key, the index and a slot
}

TEST(PropertyTreeMapMemory, AKeyIsOneAndALongKeyTwo)
{
    Map map;
    map.reserve(3);
    EXPECT_EQ(AllocationsOf([&] { map["A key that does not fit into a string"] = 1; }), 2u);
    EXPECT_EQ(AllocationsOf([&] { map["Short"] = 1; }), 1u);
    EXPECT_EQ(AllocationsOf([&] { map["a key that does not fit into a string"] = 1; }), 2u);
}

TEST(PropertyTreeMapMemory, ACopyIsOneBlock)
{
    Map map;
    for (const char* key : KEYS)
    {
        map[key] = 1.0;
    }
    map["b"] = PropertyTree();
    map["between"] = 5;
    map.erase("c");
    Map copy;
    EXPECT_EQ(AllocationsOf([&] { copy = map; }), 1 + map.size());
    const PropertyTree tree = Support::Map({{"a", Support::Map({{"b", 1}})}, {"c", Support::List({1, 2})}});
    EXPECT_EQ(AllocationsOf([&] { EXPECT_EQ(PropertyTree(tree), tree); }), 2 + 3 + 2u); // maps, keys, a list with its elements
}

TEST(PropertyTreeMapMemory, FindingErasingAndClearingNeedNone)
{
    for (const int count : {1, 10, 1000, 3000})
    {
        for (const std::size_t reserved : {0u, 8000u})
        {
            Map map;
            map.reserve(reserved);
            map.try_emplace("", 5);
            for (const auto& [key, child] : Sample(count))
            {
                map[key] = child;
            }
            const Support::FailingMemory failing;
            EXPECT_TRUE(map.contains(""));
            for (int i = 0; i < count; i += 2)
            {
                EXPECT_EQ(map.erase(std::string_view(std::to_string(i))), 1u);
            }
            while (map.size() > static_cast<std::size_t>(count))
            {
                map.erase(map.begin());
            }
            Map moved = std::move(map);
            moved.swap(map);
            map.clear();
            EXPECT_FALSE(failing.HasFailed());
        }
    }
}

TEST(PropertyTreeMapMemory, ErasedEntriesLeaveTheirRoom)
{
    Map map;
    map.reserve(9);
    for (int i = 0; i < 8; ++i)
    {
        map[std::to_string(i)] = i;
    }
    EXPECT_EQ(AllocationsOf(
                  [&]
                  {
                      for (int i = 100; i < 1000; ++i)
                      {
                          map.erase(map.begin());
                          map[std::to_string(i)] = i;
                          map["z"] = i;
                          map.erase("z");
                      }
                  }),
              2 * 900 + 1 + 7 + 2 * 900u); // the keys, and the index with what it had at first and then
}

// What stays of many entries stands together, so that others find the room.
TEST(PropertyTreeMapMemory, ThinnedOutEntriesLeaveTheirRoom)
{
    constexpr int count = 10'000;
    const auto keyOf = [](int number) { return std::to_string(100'000 + number); };
    for (const bool isRising : {true, false})
    {
        Map map;
        for (int i = 0; i < count; ++i)
        {
            map[keyOf(i)];
        }
        for (int i = 0; i < count; ++i)
        {
            const int erased = isRising ? i : count - 1 - i;
            if (erased % 250 != 0)
            {
                map.erase(keyOf(erased));
            }
        }
        ASSERT_EQ(map.size(), 40u);
        const auto insert = [&]
        {
            for (int i = 0; i < 8'000; ++i)
            {
                map[keyOf(count + i)];
            }
        };
        EXPECT_EQ(AllocationsOf(insert), 2 * 8'000u) << isRising; // the keys, and what the index has for each
        EXPECT_EQ(map.size(), 8'040u);
    }
}

// In rising and in falling order the map makes no room that stays empty.
TEST(PropertyTreeMapMemory, KeysInOrderFillWhatIsMadeForThem)
{
    for (const bool isRising : {true, false})
    {
        constexpr int count = 20'000;
        Map map;
        const std::size_t before = Support::HeldMemory();
        for (int i = 0; i < count; ++i)
        {
            map[std::to_string(100'000 + (isRising ? i : count - i))];
        }
        EXPECT_LT(Support::HeldMemory() - before, count * (sizeof(Map::value_type) + sizeof(std::string) + 64)) << isRising;
    }
}

// A key that comes in between and one that comes last, while each allocation in turn is refused.
TEST(PropertyTreeMapMemory, AFailedInsertLeavesAllAsItWas)
{
    for (const int count : {0, 1, 2, 4, 8, 128, 256, 257, 512, 2048})
    {
        for (const char* key : {"0 comes early and is no short text", "5", "~"})
        {
            const Map sample = Sample(count);
            for (std::size_t successes = 0;; successes += successes < 20 ? 1 : 97) // one for each entry, where an index is made
            {
                Map map = sample;
                const auto position = map.begin();
                Support::FailingMemory failing(successes, Support::FailingMemory::Mode::Once);
                try
                {
                    map[key] = 1;
                    break; // there was enough
                }
                catch (const std::bad_alloc&)
                {
                    EXPECT_TRUE(failing.HasFailed());
                    ASSERT_EQ(map, sample) << count << ' ' << key << ' ' << successes;
                    ASSERT_EQ(std::distance(position, map.end()), std::distance(sample.begin(), sample.end()));
                }
            }
        }
    }
}

TEST(PropertyTreeMapMemory, AFailedTryEmplaceKeepsTheValue)
{
    Map map;
    PropertyTree value("a text that does not fit into the string itself");
    {
        const Support::FailingMemory failing;
        EXPECT_THROW(map.try_emplace("a", std::move(value)), std::bad_alloc);
    }
    EXPECT_EQ(value, PropertyTree("a text that does not fit into the string itself"));
    EXPECT_TRUE(map.empty());
}

// Whatever the failed copy had made is gone: the leak check of a sanitizer sees to that.
TEST(PropertyTreeMapMemory, AFailedCopyLeavesAllAsItWas)
{
    const Map source = Sample(20);
    Map target = Sample(3);
    const Map before = target;
    std::size_t failures = 0;
    for (bool isDone = false; !isDone; ++failures)
    {
        try
        {
            const Support::FailingMemory failing(failures, Support::FailingMemory::Mode::Once);
            target = source;
            isDone = true;
        }
        catch (const std::bad_alloc&)
        {
            ASSERT_EQ(target, before) << failures;
        }
    }
    EXPECT_EQ(target, source);
    EXPECT_EQ(failures, 1 + 20 + 20 * 2 + 20 * 4 + 1u); // a block, short keys, long ones, lists of one long text, and none
}

TEST(PropertyTreeMapMemory, ReserveIsAllOrNothing)
{
    Map map;
    EXPECT_THROW(map.reserve(static_cast<std::size_t>(-1)), std::length_error);
    EXPECT_THROW(map.reserve(static_cast<std::size_t>(-1) / 16), std::length_error);
    EXPECT_THROW(PropertyTree("kept").makeMap(static_cast<std::size_t>(-1)), std::length_error);
    map["a"] = 1;
    {
        const Support::FailingMemory failing;
        EXPECT_THROW(map.reserve(20), std::bad_alloc);
    }
    const PropertyTree* child = &map.at("a");
    EXPECT_EQ(AllocationsOf([&] { map.reserve(20); }), 1 + 1 + 1u); // the index and slots
    EXPECT_EQ(&map.at("a"), child);
    EXPECT_EQ(std::distance(map.begin(), map.end()), 1);
    EXPECT_EQ(AllocationsOf(
                  [&]
                  {
                      for (const char* key : KEYS)
                      {
                          map[key] = 2;
                      }
                      map.reserve(10);
                      map.reserve(20);
                  }),
              2 * 19u); // the new keys, and what the index has for each
    EXPECT_EQ(map.size(), 20u);
}

} // namespace
