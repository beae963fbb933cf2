#include "Samples.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace
{

using namespace Samples;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;

template <class Value> Value Decoded(const PropertyTree& child, Value before = {})
{
    constexpr Ombrel::Proc::ReadFlags flags{.resetMissing = true};
    Ombrel::Proc::Codec<Value>::Read(child, before, &flags);
    return before;
}

template <class Value> PropertyTree Encoded(const Value& value)
{
    constexpr Ombrel::Proc::WriteFlags flags{.resetTargets = true, .omitDefaults = true};
    PropertyTree tree("what stood there before");
    Ombrel::Proc::Codec<Value>::Write(tree, value, &flags);
    return tree;
}

constexpr std::int64_t INT64_LOWEST = std::numeric_limits<std::int64_t>::min();

TEST(Kinds, IntegersAreWidened)
{
    EXPECT_EQ(Encoded<std::int32_t>(-1), PropertyTree(-1));
    EXPECT_EQ(Encoded<std::uint32_t>(4294967295), PropertyTree(4294967295));
    EXPECT_EQ(Encoded<std::uint8_t>(255), PropertyTree(255));
    EXPECT_EQ(Encoded<std::int64_t>(INT64_LOWEST), PropertyTree(INT64_LOWEST));
    EXPECT_EQ(Encoded<std::uint64_t>(18446744073709551615u), PropertyTree(-1));
}

TEST(Kinds, IntegersAreCutToTheirLowBits)
{
    EXPECT_EQ(Decoded<std::int32_t>(4294967297), 1);
    EXPECT_EQ(Decoded<std::int32_t>(2147483648), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Decoded<std::uint32_t>(-1), 4294967295u);
    EXPECT_EQ(Decoded<std::uint8_t>(300), 44);
    EXPECT_EQ(Decoded<std::uint8_t>(-1), 255);
    EXPECT_EQ(Decoded<std::int64_t>(INT64_LOWEST), INT64_LOWEST);
    EXPECT_EQ(Decoded<std::uint64_t>(-1), 18446744073709551615u);
}

TEST(Kinds, IntegersTakeFloatsTruncated)
{
    EXPECT_EQ(Decoded<std::int32_t>(2.7), 2);
    EXPECT_EQ(Decoded<std::uint8_t>(-1.5), 255);
    EXPECT_THROW(Decoded<std::int32_t>(1e300), std::out_of_range);
    EXPECT_THROW(Decoded<std::uint64_t>(std::nan("")), std::out_of_range);
}

TEST(Kinds, FloatsAreWidenedAndNarrowed)
{
    EXPECT_EQ(Encoded<double>(0.1), PropertyTree(0.1));
    EXPECT_EQ(Encoded<float>(0.1f), PropertyTree(0.10000000149011612));
    EXPECT_EQ(Decoded<double>(0.1), 0.1);
    EXPECT_EQ(Decoded<float>(0.1), 0.1f);
    EXPECT_EQ(Decoded<double>(3), 3.0);
    EXPECT_EQ(Decoded<float>(1e300), HUGE_VALF);
    EXPECT_EQ(Decoded<float>(-1e300), -HUGE_VALF);
    EXPECT_EQ(Decoded<float>(1e-300), 0.0f);
    EXPECT_TRUE(std::isnan(Decoded<float>(std::nan(""))));
}

TEST(Kinds, BoolsAndStringsTakeTheirOwnKindOnly)
{
    EXPECT_EQ(Encoded<bool>(true), PropertyTree(true));
    EXPECT_EQ(Decoded<bool>(true), true);
    EXPECT_THROW(Decoded<bool>(1), std::invalid_argument);
    EXPECT_THROW(Decoded<bool>("true"), std::invalid_argument);

    const std::string text("a\0b", 3);
    EXPECT_EQ(Encoded<std::string>(text), PropertyTree(text));
    EXPECT_EQ(Decoded<std::string>(text), text);
    EXPECT_THROW(Decoded<std::string>(1), std::invalid_argument);
    EXPECT_THROW(Decoded<std::string>(List({})), std::invalid_argument);
}

TEST(Kinds, ScalarsAreNotReadFromOtherStates)
{
    for (const PropertyTree& tree : {PropertyTree(), Map({}), List({1})})
    {
        EXPECT_THROW(Decoded<std::int32_t>(tree), std::invalid_argument);
        EXPECT_THROW(Decoded<double>(tree), std::invalid_argument);
        EXPECT_THROW(Decoded<bool>(tree), std::invalid_argument);
        EXPECT_THROW(Decoded<std::string>(tree), std::invalid_argument);
    }
}

TEST(Kinds, EnumsAreNames)
{
    EXPECT_EQ(Encoded(Channel::Red), PropertyTree("Red"));
    EXPECT_EQ(Encoded(Channel::None), PropertyTree(""));
    EXPECT_EQ(Encoded(static_cast<Channel>(99)), PropertyTree(""));
    EXPECT_EQ(Decoded<Channel>("Alpha"), Channel::Alpha);
}

TEST(Kinds, UnknownEnumsAreTheFallbackAndNotTheOldValue)
{
    for (const PropertyTree& tree : {PropertyTree("nonsense"), PropertyTree(""), PropertyTree(), Map({}), List({"Red"})})
    {
        EXPECT_EQ(Decoded<Channel>(tree, Channel::Red), Channel::None);
    }
}

TEST(Kinds, EnumsReadNoNumbers)
{
    EXPECT_THROW(Decoded<Channel>(1), std::invalid_argument);
    EXPECT_THROW(Decoded<Channel>(1.0), std::invalid_argument);
    EXPECT_THROW(Decoded<Channel>(true), std::invalid_argument);
}

TEST(Kinds, PairsAreMapsWithFirstAndSecond)
{
    using Pair = std::pair<Point, std::int32_t>;
    EXPECT_EQ(Encoded(Pair{{1, 0}, 3}), Map({{"first", Map({{"x", 1}})}, {"second", 3}}));
    EXPECT_EQ(Encoded(Pair{}), Map({}));
    EXPECT_EQ(Decoded<Pair>(Map({{"first", Map({{"y", 2}})}})), (Pair{{0, 2}, 0}));
}

TEST(Kinds, NestedRecordsAreMaps)
{
    EXPECT_EQ(Encoded(Point{1, 2}), Map({{"x", 1}, {"y", 2}}));
    EXPECT_EQ(Encoded(Point{0, 2}), Map({{"y", 2}}));
    EXPECT_EQ(Decoded<Point>(Map({{"x", 1}}), {8, 9}), (Point{1, 0}));
    EXPECT_THROW(Decoded<Point>(5), std::invalid_argument);
    EXPECT_THROW(Decoded<Point>(List({})), std::invalid_argument);
    EXPECT_THROW(Decoded<Point>(PropertyTree()), std::invalid_argument);
}

TEST(Kinds, ListsReplaceTheFieldInOrder)
{
    using Points = std::vector<Point>;
    const PropertyTree tree = List({Map({{"y", 5}}), Map({}), Map({{"x", 1}})});
    EXPECT_EQ(Encoded(Points{{0, 5}, {0, 0}, {1, 0}}), tree);
    EXPECT_EQ(Decoded<Points>(tree, {{9, 9}}), (Points{{0, 5}, {0, 0}, {1, 0}}));
    EXPECT_EQ(Decoded<Points>(List({}), {{9, 9}}), Points());
    EXPECT_EQ(Encoded(Points()), List({}));
}

TEST(Kinds, AnythingButAListLeavesAListAlone)
{
    for (const PropertyTree& tree : {PropertyTree(), PropertyTree(5), Map({{"x", 1}})})
    {
        EXPECT_EQ((Decoded<std::vector<Point>>(tree, {{9, 9}})), (std::vector<Point>{{9, 9}}));
        EXPECT_EQ((Decoded<std::set<Channel>>(tree, {Channel::Red})), (std::set<Channel>{Channel::Red}));
    }
}

TEST(Kinds, AFailingElementKeepsThoseBeforeIt)
{
    constexpr Ombrel::Proc::ReadFlags flags{.resetMissing = true};
    std::vector<Point> points{{9, 9}, {9, 9}, {9, 9}};
    EXPECT_THROW(Ombrel::Proc::Codec<std::vector<Point>>::Read(List({Map({{"x", 1}}), 5, Map({})}), points, &flags),
                 std::invalid_argument);
    EXPECT_EQ(points, (std::vector<Point>{{1, 0}}));
}

TEST(Kinds, ListsOfListsAndOfEnums)
{
    using Rows = std::vector<std::vector<std::int32_t>>;
    EXPECT_EQ(Encoded(Rows{{1, 2}, {}}), List({List({1, 2}), List({})}));
    EXPECT_EQ(Decoded<Rows>(List({List({1, 2}), List({}), 5})), (Rows{{1, 2}, {}, {}}));

    using Channels = std::vector<Channel>;
    EXPECT_EQ(Encoded(Channels{Channel::Red, Channel::None}), List({"Red", ""}));
    EXPECT_EQ(Decoded<Channels>(List({"Alpha", "nonsense", "Alpha"})),
              (Channels{Channel::Alpha, Channel::None, Channel::Alpha}));
}

TEST(Kinds, SetsAreAscendingListsWithoutRepeats)
{
    using Set = std::set<Channel>;
    EXPECT_EQ(Encoded(Set{Channel::Alpha, Channel::Red}), List({"Red", "Alpha"}));
    EXPECT_EQ(Decoded<Set>(List({"Alpha", "Red", "Red"}), {Channel::Green}), (Set{Channel::Red, Channel::Alpha}));
    EXPECT_EQ(Decoded<Set>(List({"nonsense"})), (Set{Channel::None}));
    EXPECT_EQ(Decoded<Set>(List({}), {Channel::Green}), Set());
}

} // namespace
