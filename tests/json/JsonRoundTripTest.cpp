#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace Ombrel
{
namespace
{

using Kind = PropertyTreeScalar::Kind;
using Doubles = std::numeric_limits<double>;
using Integers = std::numeric_limits<std::int64_t>;

constexpr std::array<std::int64_t, 6> INTEGERS = {0, -1, Integers::max(), Integers::min(), 9007199254740993, -9007199254740993};

constexpr std::array<double, 13> FLOATS = {0.0,
                                           -0.0,
                                           1.0,
                                           -3.0,
                                           0.1,
                                           1e16,
                                           Doubles::max(),
                                           Doubles::lowest(),
                                           Doubles::min(),
                                           -Doubles::denorm_min(),
                                           9223372036854775808.0,
                                           0.30000000000000004,
                                           2.225073858507201e-308};

const std::array<std::string, 18> STRINGS = {"",
                                             "NaN",
                                             "\\NaN",
                                             "\\\\Infinity",
                                             "-Infinity",
                                             "\\-Infinity",
                                             "Infinity",
                                             "\\",
                                             "null",
                                             "1.0",
                                             "\0"s,
                                             "a\0b"s,
                                             "\x01\x1f\x7f\n\r\t\b\f",
                                             "\"quoted\" \\ / ~",
                                             "\xC3\xA4\xE2\x82\xAC",
                                             "\xF0\x9F\x98\x80",
                                             "\xEF\xBB\xBF",
                                             "a text that is longer than what a string holds without memory of its own"};

class TreeMaker
{
public:
    TreeMaker(std::uint64_t seed, bool withNonFinite) : m_random(seed), m_withNonFinite(withNonFinite) {}

    PropertyTree MakeContainer(unsigned levels) { return Below(2) == 0 ? MakeList(levels) : MakeMap(levels); }

private:
    PropertyTree Make(unsigned levels)
    {
        switch (Below(levels == 0 ? 5 : 10))
        {
        case 0:
            return {};
        case 1:
            return Below(2) == 0;
        case 2:
            return MakeInteger();
        case 3:
            return MakeFloat();
        case 4:
            return MakeString();
        default:
            return MakeContainer(levels - 1);
        }
    }

    std::size_t Below(std::size_t end) { return static_cast<std::size_t>(m_random() % end); }

    std::int64_t MakeInteger()
    {
        return Below(2) == 0 ? INTEGERS[Below(INTEGERS.size())] : static_cast<std::int64_t>(m_random() >> Below(64));
    }

    double MakeFloat()
    {
        if (Below(3) == 0)
        {
            return FLOATS[Below(FLOATS.size())];
        }
        const double value = std::bit_cast<double>(m_random());
        if (std::isfinite(value) || m_withNonFinite)
        {
            return value;
        }
        return 1.5;
    }

    PropertyTree MakeNonFinite()
    {
        constexpr std::array<double, 3> values = {Doubles::quiet_NaN(), Doubles::infinity(), -Doubles::infinity()};
        return values[Below(values.size())];
    }

    std::string MakeString()
    {
        std::string text = STRINGS[Below(STRINGS.size())];
        return Below(4) == 0 ? text + STRINGS[Below(STRINGS.size())] : text;
    }

    PropertyTree MakeList(unsigned levels)
    {
        PropertyTree tree;
        tree.convertToList();
        for (std::size_t count = Below(7); count != 0; --count)
        {
            tree.append(m_withNonFinite && Below(8) == 0 ? MakeNonFinite() : Make(levels));
        }
        return tree;
    }

    PropertyTree MakeMap(unsigned levels)
    {
        PropertyTree tree;
        tree.convertToMap();
        for (std::size_t count = Below(7); count != 0; --count)
        {
            tree[MakeString()] = Make(levels);
        }
        return tree;
    }

    std::mt19937_64 m_random;
    bool m_withNonFinite;
};

// Stricter than ==, which takes -0.0 for 0.0, and a NaN is the same as any other.
bool IsSame(const PropertyTree& a, const PropertyTree& b)
{
    if (a.isNull() || b.isNull())
    {
        return a.isNull() && b.isNull();
    }
    if (a.isScalar() || b.isScalar())
    {
        if (!a.isScalar() || !b.isScalar() || a.getScalar().kind() != b.getScalar().kind())
        {
            return false;
        }
        if (a.getScalar().kind() != Kind::Float)
        {
            return a == b;
        }
        const double x = a.getScalar().toDouble();
        const double y = b.getScalar().toDouble();
        return std::isnan(x) ? std::isnan(y) : std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
    }
    if (a.isList() || b.isList())
    {
        return a.isList() && b.isList() &&
               std::equal(a.getList().begin(), a.getList().end(), b.getList().begin(), b.getList().end(), IsSame);
    }
    return std::equal(a.getMap().begin(), a.getMap().end(), b.getMap().begin(), b.getMap().end(),
                      [](const auto& x, const auto& y) { return x.first == y.first && IsSame(x.second, y.second); });
}

void ExpectRoundTrips(bool nonFiniteAsText, unsigned indent)
{
    std::size_t bytes = 0;
    for (std::uint64_t seed = 1; seed <= 4000; ++seed)
    {
        const PropertyTree tree = TreeMaker(seed, nonFiniteAsText).MakeContainer(5);
        const std::string text = WriteJson(tree, {.nonFiniteAsText = nonFiniteAsText, .indent = indent});
        const PropertyTree back = ReadJson(text, {.nonFiniteAsText = nonFiniteAsText});
        ASSERT_TRUE(IsSame(tree, back)) << "seed " << seed << ", text " << text << ", read back as "
                                        << WriteJson(back, {.nonFiniteAsText = nonFiniteAsText});
        bytes += text.size();
    }
    EXPECT_GT(bytes, 1000000U) << "the trees are too small to show anything";
}

TEST(JsonRoundTrip, RandomTrees)
{
    ExpectRoundTrips(false, 0);
}

TEST(JsonRoundTrip, RandomTreesIndented)
{
    ExpectRoundTrips(false, 3);
}

TEST(JsonRoundTrip, RandomTreesWithNonFiniteFloats)
{
    ExpectRoundTrips(true, 0);
}

TEST(JsonRoundTrip, RandomFloats)
{
    std::mt19937_64 random(20240229);
    for (int i = 0; i < 50000; ++i)
    {
        const double value = std::bit_cast<double>(random());
        if (!std::isfinite(value))
        {
            continue;
        }
        const std::string text = WriteJson(value);
        ASSERT_TRUE(IsSame(ReadJson(text), value)) << text;
    }
}

} // namespace
} // namespace Ombrel
