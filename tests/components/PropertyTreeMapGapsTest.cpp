#include "PropertyTree/PropertyTree.h"
#include "support/FailingMemory.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <iterator>
#include <new>

// What an entry leaves that is erased from a small map before its end.

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
    EXPECT_EQ(failures, 3u); // the key and the second block
    sample["a key in between that does not fit either"] = 1;
    EXPECT_EQ(map, sample);
    EXPECT_EQ(AllocationsOf([&] { map["f"] = 2; }), 0u); // the other gap's place
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
    map["b"] = 4;
    map["d"] = 5;
    map["e"] = 6;
    EXPECT_EQ(map.size(), 3u);
    EXPECT_FALSE(failing.HasFailed());
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
