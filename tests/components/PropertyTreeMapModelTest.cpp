#include "PropertyTreeMapTwins.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <ostream>
#include <random>
#include <tuple>

// The map and std::map get the same random steps and must hold the same after each.

namespace
{

using Ombrel::PropertyTree;
using Support::MapTwins;
using Map = PropertyTree::Map;
using Random = std::mt19937;

struct Run
{
    const char* name;
    std::function<std::string(Random&)> key;
    int steps;
};

void PrintTo(const Run& run, std::ostream* out)
{
    *out << run.name;
}

std::string Bytes(Random& random)
{
    std::string key(random() % 11, '\0');
    for (char& character : key)
    {
        character = "\0ab\xff"[random() % 4];
    }
    return key;
}

const Run RUNS[] = {
    {"a few keys", [](Random& random) { return std::to_string(random() % 12); }, 20'000},
    {"one leaf", [](Random& random) { return "key " + std::to_string(random() % 300); }, 40'000},
    {"several leaves", [](Random& random) { return std::to_string(random() % 9000); }, 120'000},
    {"one long beginning", [](Random& random) { return "settings of effect " + std::to_string(random() % 5000); }, 80'000},
    {"any bytes", Bytes, 120'000},
};

class PropertyTreeMapModel : public testing::TestWithParam<Run>
{
};

TEST_P(PropertyTreeMapModel, HoldsWhatStdMapHolds)
{
    for (const unsigned seed : {1u, 2u, 3u})
    {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        Random random(seed);
        MapTwins twins(random);
        Random::result_type insertsInTen = 7;
        for (int step = 0; step < GetParam().steps && !testing::Test::HasFailure(); ++step)
        {
            const std::string key = GetParam().key(random);
            const auto choice = random() % 10;
            choice < insertsInTen ? twins.Insert(key, step) : choice < 9 ? twins.Erase(key) : twins.Find(key);
            twins.CompareOneHeld();
            if (step % 3000 == 2999)
            {
                insertsInTen = 2 + random() % 7; // now the map grows, now it shrinks
                twins.Compare();
                twins.Handle();
                twins.Compare();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Runs, PropertyTreeMapModel, testing::ValuesIn(RUNS));

// Small maps that were filled in order, with gaps from the first erased entry to the first that comes in between.
TEST(PropertyTreeMapGaps, HoldWhatStdMapHolds)
{
    Random random(5);
    for (int round = 0; round < 3000 && !testing::Test::HasFailure(); ++round)
    {
        SCOPED_TRACE(testing::Message() << "round " << round);
        MapTwins twins(random);
        const int count = 1 + static_cast<int>(random() % 36);
        const auto keyOf = [](int number) { return std::to_string(10 + number); };
        twins.Reserve(static_cast<std::size_t>(count) + random() % 2);
        for (int i = 0; i < count; ++i)
        {
            twins.Insert(keyOf(2 * i), i);
        }
        for (int step = 0; step < 2 * count && !testing::Test::HasFailure(); ++step)
        {
            const bool isNew = random() % 32 == 0;
            const std::string key = keyOf(2 * static_cast<int>(random() % static_cast<unsigned>(count)) + (isNew ? 1 : 0));
            random() % 3 == 0 ? twins.Insert(key, step) : random() % 8 == 0 ? twins.Find(key) : twins.Erase(key);
            twins.Compare();
        }
    }
}

enum class Order
{
    Rising,
    Falling,
    Shuffled,
    FromBothEnds,
    FromTheMiddle,
};

void PrintTo(Order order, std::ostream* out)
{
    constexpr const char* names[] = {"rising", "falling", "shuffled", "from both ends", "from the middle"};
    *out << names[static_cast<int>(order)];
}

std::vector<int> Numbers(int count, Order order)
{
    std::vector<int> numbers(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        const int inward = i % 2 == 0 ? i / 2 : count - 1 - i / 2;
        const int number = order == Order::Falling         ? count - 1 - i
                           : order == Order::FromBothEnds  ? inward
                           : order == Order::FromTheMiddle ? (i % 2 == 0 ? count / 2 + i / 2 : count / 2 - 1 - i / 2)
                                                           : i;
        numbers[static_cast<std::size_t>(i)] = number;
    }
    if (order == Order::Shuffled)
    {
        std::shuffle(numbers.begin(), numbers.end(), Random(11));
    }
    return numbers;
}

// Of one length, so that they have the order of the numbers.
std::string KeyOf(int number)
{
    return "key " + std::to_string(1'000'000 + number);
}

void KeepsAllThroughGrowingAndShrinking(int count, Order inserting, Order erasing, bool isReserved)
{
    Map map;
    if (isReserved)
    {
        map.reserve(static_cast<std::size_t>(count));
    }
    std::vector<const PropertyTree*> children(static_cast<std::size_t>(count));
    for (const int number : Numbers(count, inserting))
    {
        PropertyTree& child = map[KeyOf(number)];
        child = number;
        children[static_cast<std::size_t>(number)] = &child;
    }
    ASSERT_EQ(map.size(), static_cast<std::size_t>(count));
    int number = 0;
    for (const auto& [key, child] : map)
    {
        ASSERT_EQ(key, KeyOf(number));
        ASSERT_EQ(&child, children[static_cast<std::size_t>(number)]) << key;
        ++number;
    }
    for (const int erased : Numbers(count, erasing))
    {
        const auto found = map.find(KeyOf(erased));
        ASSERT_NE(found, map.end()) << erased;
        ASSERT_EQ(found->second, PropertyTree(erased));
        map.erase(found);
    }
    EXPECT_TRUE(map.empty());
    EXPECT_EQ(map.begin(), map.end());
    map["again"] = 1;
    EXPECT_EQ(map.begin()->first, "again");
}

constexpr Order ORDERS[] = {Order::Rising, Order::Falling, Order::Shuffled, Order::FromBothEnds, Order::FromTheMiddle};

TEST(PropertyTreeMapOrder, OfAnySizeIsKept)
{
    for (const int count : {1, 2, 4, 5, 255, 256, 511, 512, 513, 3000})
    {
        for (const Order inserting : ORDERS)
        {
            for (const Order erasing : ORDERS)
            {
                for (const bool isReserved : {false, true})
                {
                    SCOPED_TRACE(testing::Message() << count << ' ' << testing::PrintToString(inserting) << ", erased "
                                                    << testing::PrintToString(erasing) << (isReserved ? ", reserved" : ""));
                    ASSERT_NO_FATAL_FAILURE(KeepsAllThroughGrowingAndShrinking(count, inserting, erasing, isReserved));
                }
            }
        }
    }
}

class PropertyTreeMapMillion : public testing::TestWithParam<std::tuple<Order, Order, bool>>
{
};

// A shift of all that follows, or a search through all that is there, would take many minutes. The limit is for a slow machine,
// and counts the time of this program alone.
TEST_P(PropertyTreeMapMillion, TakesSeconds)
{
    const std::clock_t start = std::clock();
    const auto [inserting, erasing, isReserved] = GetParam();
    KeepsAllThroughGrowingAndShrinking(1'000'000, inserting, erasing, isReserved);
    EXPECT_LT(std::clock() - start, 60 * CLOCKS_PER_SEC);
}

INSTANTIATE_TEST_SUITE_P(Orders, PropertyTreeMapMillion,
                         testing::Values(std::tuple(Order::Rising, Order::Rising, true),
                                         std::tuple(Order::Falling, Order::Falling, false),
                                         std::tuple(Order::Shuffled, Order::Shuffled, false),
                                         std::tuple(Order::FromTheMiddle, Order::FromBothEnds, false)));

} // namespace
