#include "PropertyTree/PropertyTreeOutput.h" // shows a tree in a failed expectation
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace Ombrel
{
namespace
{

using Kind = PropertyTreeScalar::Kind;

struct FloatText
{
    double value;
    const char* text;
};

constexpr FloatText FLOATS[] = {
    {0.0, "0.0"},
    {-0.0, "-0.0"},
    {1.0, "1.0"},
    {-1.0, "-1.0"},
    {0.1, "0.1"},
    {0.30000000000000004, "0.30000000000000004"},
    {3.5, "3.5"},
    {100.0, "100.0"},
    {123456789.0, "123456789.0"},
    {9007199254740992.0, "9007199254740992.0"},
    {9223372036854775808.0, "9223372036854775808.0"},
    {1e22, "1e+22"},
    {1.5e300, "1.5e+300"},
    {4.486371142836947e31, "4.486371142836947e+31"}, // needs more digits than are exact while it is read
    {1e-7, "1e-07"},
    {0.001, "0.001"},
    // The fewest digits, next to what has an exponent or more digits.
    {0.000999999, "0.000999999"},
    {0.0001, "1e-04"},
    {0.0012, "0.0012"},
    {0.001234, "0.001234"},
    {0.0012345, "0.0012345"},
    {0.123456, "0.123456"},
    {0.1234567, "0.1234567"},
    {-12.5, "-12.5"},
    {99999.999999, "99999.999999"},
    {99999.9999999, "99999.9999999"},
    {10000.0, "10000.0"},
    {90000.0, "90000.0"},
    {100000.0, "1e+05"},
    {-100000.0, "-1e+05"},
    {120000.0, "120000.0"},
    {100000.5, "100000.5"},
    {0.10000000149011612, "0.10000000149011612"},
    {0.49999999999999994, "0.49999999999999994"},
    {0.9999995, "0.9999995"},
    {1.0000000000000002, "1.0000000000000002"},
    {2.2250738585072014e-308, "2.2250738585072014e-308"},
    {2.225073858507201e-308, "2.225073858507201e-308"},
    {5e-324, "5e-324"},
    {-5e-324, "-5e-324"},
    {1.7976931348623157e308, "1.7976931348623157e+308"},
    {-1.7976931348623157e308, "-1.7976931348623157e+308"},
};

TEST(JsonFloats, AreWrittenShortestAndNeverLookLikeIntegers)
{
    for (const FloatText& row : FLOATS)
    {
        EXPECT_EQ(WriteJson(row.value), row.text);
    }
}

TEST(JsonFloats, ReadBackWithTheSameBits)
{
    for (const FloatText& row : FLOATS)
    {
        const PropertyTree tree = ReadJson(row.text);
        ASSERT_EQ(tree.getScalar().kind(), Kind::Float) << row.text;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(tree.getScalar().toDouble()), std::bit_cast<std::uint64_t>(row.value))
            << row.text;
    }
}

struct FloatRead
{
    const char* text;
    double value;
};

constexpr FloatRead FLOATS_READ[] = {
    {"1E5", 100000.0},
    {"1e+5", 100000.0},
    {"1e5", 100000.0},
    {"0e0", 0.0},
    {"-0e7", -0.0},
    {"0.0e999999999999999999999", 0.0},
    {"12.50", 12.5},
    {"179769313486231570000000000000000000000e270", 1.7976931348623157e308},
    // Halfway between two neighbours, and a trace above.
    {"9007199254740993.0", 9007199254740992.0},
    {"9007199254740993.00000000000000000000000000000000001", 9007199254740994.0},
    // Below the smallest float: to the nearest one.
    {"3e-324", 5e-324},
    {"2e-324", 0.0},
    {"1e-400", 0.0},
    {"-1e-400", -0.0},
    {"1e-99999999999999999999", 0.0},
    {"-123456789.5e-99999999999999999999", -0.0},
    {"1000000000e-400", 0.0},
    // The largest numbers of digits that are not parsed again, and one more.
    {"9007199254740992.0", 9007199254740992.0},
    {"900719925474099.3", 900719925474099.25},
    {"-90071992547409.93", -90071992547409.93},
    {"0.9007199254740993", 0.9007199254740993},
    {"0.0000000000000000000001", 1e-22},
    {"0.00000000000000000000012", 1.2e-22},
    {"-0.0000000000000000000003", -3e-22},
    {"1844674407370955161.5", 1844674407370955161.5},
    {"1844674407370955161.75", 1844674407370955161.75},
    {"18446744073709551616.0", 18446744073709551616.0},
    {"18446744073709551617.5", 18446744073709551616.0},
    {"0.10000000000000000000000", 0.1},
};

TEST(JsonFloats, ReadAsTheNearestFloat)
{
    for (const FloatRead& row : FLOATS_READ)
    {
        const PropertyTree tree = ReadJson(row.text);
        ASSERT_EQ(tree.getScalar().kind(), Kind::Float) << row.text;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(tree.getScalar().toDouble()), std::bit_cast<std::uint64_t>(row.value))
            << row.text;
    }
}

TEST(JsonFloats, LongDigitStringsAreJudgedByTheirValue)
{
    const std::string zeros(400, '0');
    EXPECT_EQ(ReadJson("0." + zeros + "1").getScalar().toDouble(), 0.0);
    EXPECT_EQ(ReadJson("0." + zeros + "1e50").getScalar().toDouble(), 0.0);
    EXPECT_EQ(ReadJson("0." + zeros + "5e401").getScalar().toDouble(), 5.0);
    EXPECT_EQ(ReadJson("5" + zeros + "e-400").getScalar().toDouble(), 5.0);
    EXPECT_EQ(ReadJson("5" + zeros + ".0e-900").getScalar().toDouble(), 0.0);
    EXPECT_THROW(ReadJson("5" + zeros + ".0"), JsonError);
    EXPECT_THROW(ReadJson("5" + zeros), JsonError);
    EXPECT_THROW(ReadJson("0." + zeros + "1e900"), JsonError);
}

struct IntegerText
{
    std::int64_t value;
    const char* text;
};

constexpr IntegerText INTEGERS[] = {
    {0, "0"},
    {1, "1"},
    {-1, "-1"},
    {9007199254740993, "9007199254740993"}, // no double holds it
    {999999999999999999, "999999999999999999"},
    {-999999999999999999, "-999999999999999999"},
    {1000000000000000000, "1000000000000000000"},
    {-1000000000000000000, "-1000000000000000000"},
    {9223372036854775806, "9223372036854775806"},
    {std::numeric_limits<std::int64_t>::max(), "9223372036854775807"},
    {std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"},
};

TEST(JsonIntegers, AreExactInBothDirections)
{
    for (const IntegerText& row : INTEGERS)
    {
        EXPECT_EQ(WriteJson(row.value), row.text);
        const PropertyTree tree = ReadJson(row.text);
        ASSERT_EQ(tree.getScalar().kind(), Kind::Integer) << row.text;
        EXPECT_EQ(tree.getScalar().toInt(), row.value) << row.text;
    }
}

TEST(JsonIntegers, MinusZeroIsZero)
{
    const PropertyTree tree = ReadJson("-0");
    ASSERT_EQ(tree.getScalar().kind(), Kind::Integer);
    EXPECT_EQ(tree.getScalar().toInt(), 0);
}

TEST(JsonIntegers, StayApartFromFloats)
{
    EXPECT_EQ(ReadJson("[1, 1.0, 1e0, -0, -0.0]"), ReadJson("[1,1.0,1.0,0,0.0]"));
    EXPECT_EQ(WriteJson(ReadJson("[1, 1.0, 1e0, -0, -0.0]")), "[1,1.0,1.0,0,-0.0]");
}

TEST(JsonNonFinite, IsRefusedByDefault)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const double values[] = {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity};
    const char* const messages[] = {"at a/1/radius: NaN has no JSON form", "at a/1/radius: Infinity has no JSON form",
                                    "at a/1/radius: -Infinity has no JSON form"};
    for (std::size_t i = 0; i < std::size(values); ++i)
    {
        PropertyTree inner;
        inner["amount"] = 1;
        inner["radius"] = values[i];
        PropertyTree tree;
        tree["a"].append(0);
        tree["a"].append(inner);
        try
        {
            ADD_FAILURE() << "was written: " << WriteJson(tree);
        }
        catch (const JsonWriteError& error)
        {
            EXPECT_EQ(error.path(), "a/1/radius");
            EXPECT_STREQ(error.what(), messages[i]);
        }
    }
}

TEST(JsonNonFinite, NeedsNoPathAtTheTop)
{
    try
    {
        WriteJson(std::numeric_limits<double>::quiet_NaN());
        ADD_FAILURE() << "was written";
    }
    catch (const JsonWriteError& error)
    {
        EXPECT_EQ(error.path(), "");
        EXPECT_STREQ(error.what(), "NaN has no JSON form");
    }
}

TEST(JsonNonFinite, IsTextWithTheOption)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    PropertyTree tree;
    tree.append(std::numeric_limits<double>::quiet_NaN());
    tree.append(infinity);
    tree.append(-infinity);
    tree.append(-std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(WriteJson(tree, {.nonFiniteAsText = true}), R"(["NaN","Infinity","-Infinity","NaN"])");

    const PropertyTree back = ReadJson(R"(["NaN", "Infinity", "-Infinity"])", {.nonFiniteAsText = true});
    ASSERT_EQ(back.getList().size(), 3U);
    EXPECT_TRUE(std::isnan(back.getList()[0].getScalar().toDouble()));
    EXPECT_EQ(back.getList()[1], PropertyTree(infinity));
    EXPECT_EQ(back.getList()[2], PropertyTree(-infinity));
}

struct GuardedText
{
    const char* content;
    const char* plain;   // its JSON text without the option
    const char* guarded; // and with it
};

constexpr GuardedText GUARDED[] = {
    {"NaN", R"("NaN")", R"("\\NaN")"},
    {"Infinity", R"("Infinity")", R"("\\Infinity")"},
    {"-Infinity", R"("-Infinity")", R"("\\-Infinity")"},
    {"\\NaN", R"("\\NaN")", R"("\\\\NaN")"},
    {"\\\\-Infinity", R"("\\\\-Infinity")", R"("\\\\\\-Infinity")"},
    // None of these is a name behind backslashes.
    {"nan", R"("nan")", R"("nan")"},
    {"NaN ", R"("NaN ")", R"("NaN ")"},
    {" NaN", R"(" NaN")", R"(" NaN")"},
    {"+Infinity", R"("+Infinity")", R"("+Infinity")"},
    {"a\\NaN", R"("a\\NaN")", R"("a\\NaN")"},
    {"\\", R"("\\")", R"("\\")"},
    {"", R"("")", R"("")"},
};

TEST(JsonNonFinite, StringsOfThatLookAreGuarded)
{
    for (const GuardedText& row : GUARDED)
    {
        EXPECT_EQ(WriteJson(row.content), row.plain);
        EXPECT_EQ(WriteJson(row.content, {.nonFiniteAsText = true}), row.guarded);
        EXPECT_EQ(ReadJson(row.plain), PropertyTree(row.content)) << row.plain;
        EXPECT_EQ(ReadJson(row.guarded, {.nonFiniteAsText = true}), PropertyTree(row.content)) << row.guarded;
    }
}

TEST(JsonNonFinite, KeysAreNotConcerned)
{
    PropertyTree tree;
    tree["NaN"] = "x";
    tree["\\NaN"] = "y";
    EXPECT_EQ(WriteJson(tree, {.nonFiniteAsText = true}), R"({"NaN":"x","\\NaN":"y"})");
    EXPECT_EQ(ReadJson(R"({"NaN": "x", "\\NaN": "y"})", {.nonFiniteAsText = true}), tree);
}

} // namespace
} // namespace Ombrel
