#include "PropertyTree/PropertyTree.h"
#include "support/FailingMemory.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <new>
#include <string>
#include <string_view>

// What an entry leaves that is erased before the end of a map that is in order.

namespace
{

using Ombrel::PropertyTree;
using Support::AllocationsOf;
using Map = PropertyTree::Map;

TEST(PropertyTreeMapGaps, StayAsTheyWereWhenAnInsertFails)
{
    Map map;
    map.reserve(5);
    for (const char* key : {"a", "a key that does not fit into a string", "c", "e", "g"})
    {
        map[key] = key;
    }
    Map sample = map;
    map.erase("c");
    sample.erase("c");
    map.erase("a key that does not fit into a string");
    sample.erase("a key that does not fit into a string");
    const auto position = map.begin();
    std::size_t failures = 0;
    for (bool isDone = false; !isDone; ++failures)
    {
        try
        {
            const Support::FailingMemory failing(failures, Support::FailingMemory::Mode::Once);
            map["a key in between that does not fit either"] = 1;
            isDone = true;
        }
        catch (const std::bad_alloc&)
        {
            ASSERT_EQ(map, sample) << failures;
            ASSERT_EQ(std::distance(position, map.end()), 3);
        }
    }
    EXPECT_EQ(failures, 2 + 1 + 4 + 1u); // the key, the index, and none
    sample["a key in between that does not fit either"] = 1;
    EXPECT_EQ(map, sample);
    EXPECT_EQ(AllocationsOf([&] { map["f"] = 2; }),
              2u); // the key and its place in the index, since the other gap's slot is free
}

TEST(PropertyTreeMapGaps, TakeTheirKeyBackWithoutMemory)
{
    Map map;
    map.reserve(3);
    map["a"] = 1;
    map["a key that does not fit into a string"] = 2;
    map["c"] = 3;
    const Support::FailingMemory failing;
    EXPECT_EQ(map.erase("a key that does not fit into a string"), 1u);
    EXPECT_EQ(map.erase("a key that does not fit into a string"), 0u);
    EXPECT_FALSE(map.contains("a key that does not fit into a string"));
    EXPECT_EQ(map.find("a key that does not fit into a string"), map.end());
    EXPECT_EQ(map.size(), 2u);
    EXPECT_TRUE(map["a key that does not fit into a string"].isNull());
    EXPECT_EQ(map.size(), 3u);
    EXPECT_EQ(std::next(map.begin())->first, "a key that does not fit into a string");
    while (!map.empty())
    {
        map.erase(map.begin());
    }
    EXPECT_FALSE(failing.HasFailed());
}

// Every subset of the entries, erased in every order, and then taken back in every order.
TEST(PropertyTreeMapGaps, AreFoundInRowsOfEveryShape)
{
    const std::string letters = "abcdef"; // of which the last one stays, since without it the gaps before it would go
    Map whole;
    whole.reserve(letters.size());
    for (const char& letter : letters)
    {
        whole[std::string_view(&letter, 1)] = letter - 'a';
    }
    for (unsigned subset = 0; subset != 1U << (letters.size() - 1); ++subset)
    {
        std::string erased;
        std::string kept;
        for (std::size_t i = 0; i != letters.size(); ++i)
        {
            ((subset >> i & 1U) != 0 ? erased : kept) += letters[i];
        }
        std::string order = erased;
        do
        {
            Map map = whole;
            for (const char& letter : order)
            {
                map.erase(std::string_view(&letter, 1));
            }
            const auto text = [&map]
            {
                std::string keys;
                std::string backwards;
                for (auto entry = map.begin(); entry != map.end(); ++entry)
                {
                    keys += entry->first;
                }
                for (auto entry = map.rbegin(); entry != map.rend(); ++entry)
                {
                    backwards.insert(0, entry->first);
                }
                EXPECT_EQ(keys, backwards);
                return keys;
            };
            ASSERT_EQ(text(), kept) << order;
            for (const char& letter : letters)
            {
                const auto next = map.lower_bound(std::string_view(&letter, 1));
                ASSERT_EQ(next->first[0], *std::find_if(kept.begin(), kept.end(), [&](char c) { return c >= letter; }));
            }
            std::string now = kept;
            for (const char& letter : erased) // in the same order for all, since the rows differ already
            {
                const Support::FailingMemory failing;
                ASSERT_TRUE(map[std::string_view(&letter, 1)].isNull());
                now.insert(std::upper_bound(now.begin(), now.end(), letter), letter);
                ASSERT_EQ(text(), now) << order;
            }
        } while (std::next_permutation(order.begin(), order.end()));
    }
}

// Far from both ends of a long row, taking the key back makes an index.
TEST(PropertyTreeMapGaps, OfALongRowTakeTheirKeysBackInAnyOrder)
{
    constexpr int count = 5000;
    const auto keyOf = [](int number) { return std::to_string(10'000 + number); };
    for (const int step : {1, 7, 1667, 2499, 3331, 4999}) // each has no factor in common with the count
    {
        Map map;
        map.reserve(count + 1);
        for (int i = 0; i <= count; ++i)
        {
            map[keyOf(i)] = i;
        }
        for (int i = 0; i < count; ++i)
        {
            map.erase(keyOf(i));
        }
        EXPECT_EQ(map.size(), 1u);
        EXPECT_EQ(map.begin()->first, keyOf(count));
        EXPECT_EQ(map.lower_bound(keyOf(17))->first, keyOf(count));
        for (int i = 0, number = 2500; i < count; ++i, number = (number + step) % count)
        {
            ASSERT_TRUE(map[keyOf(number)].isNull());
        }
        EXPECT_EQ(map.size(), count + 1u);
        int expected = 0;
        for (const auto& [key, child] : map)
        {
            ASSERT_EQ(key, keyOf(expected++));
        }
    }
}

TEST(PropertyTreeMapGaps, AreNotCopiedWithATree)
{
    PropertyTree tree;
    PropertyTree::Map& map = tree.makeMap(4);
    for (const char* key : {"a", "b", "c", "d"})
    {
        map[key] = key;
    }
    map.erase("a");
    map.erase("c");
    PropertyTree copy = tree;
    EXPECT_EQ(copy, Support::Map({{"b", "b"}, {"d", "d"}}));
    EXPECT_EQ(copy, tree);
    EXPECT_TRUE(copy["c"].isNull());
    EXPECT_TRUE(tree["c"].isNull());
    EXPECT_EQ(copy, tree);
}

} // namespace
