#include "PropertyTree/PropertyTreeOutput.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PropertyTreeScalar;
using Support::List;
using Support::Map;

template <class T> std::string TextOf(const T& value)
{
    std::ostringstream out;
    out << value;
    return out.str();
}

TEST(PropertyTreeOutput, WritesEveryState)
{
    EXPECT_EQ(TextOf(PropertyTree()), "null");
    EXPECT_EQ(TextOf(PropertyTree(true)), "true");
    EXPECT_EQ(TextOf(PropertyTree(-5)), "-5");
    EXPECT_EQ(TextOf(PropertyTree("text")), "\"text\"");
    EXPECT_EQ(TextOf(Map({})), "{}");
    EXPECT_EQ(TextOf(List({})), "[]");
    EXPECT_EQ(TextOf(Map({{"b", List({1, PropertyTree(), Map({})})}, {"a", Map({{"x", false}, {"y", List({})}})}})),
              R"({"a": {"x": false, "y": []}, "b": [1, null, {}]})");
}

TEST(PropertyTreeOutput, WritesScalarsAsTheirTrees)
{
    EXPECT_EQ(TextOf(PropertyTreeScalar(false)), "false");
    EXPECT_EQ(TextOf(PropertyTreeScalar(std::numeric_limits<std::int64_t>::min())), "-9223372036854775808");
    EXPECT_EQ(TextOf(PropertyTreeScalar(0.5)), "0.5");
    EXPECT_EQ(TextOf(PropertyTreeScalar("a")), "\"a\"");
}

TEST(PropertyTreeOutput, FloatsHaveTheFewestDigitsAndLookLikeFloats)
{
    EXPECT_EQ(TextOf(PropertyTree(1.0)), "1.0");
    EXPECT_EQ(TextOf(PropertyTree(-0.0)), "-0.0");
    EXPECT_EQ(TextOf(PropertyTree(0.1)), "0.1");
    EXPECT_EQ(TextOf(PropertyTree(0.1 + 0.2)), "0.30000000000000004");
    EXPECT_EQ(TextOf(PropertyTree(0.1f)), "0.10000000149011612");
    EXPECT_EQ(TextOf(PropertyTree(1e300)), "1e+300");
    EXPECT_EQ(TextOf(PropertyTree(-2.2250738585072014e-308)), "-2.2250738585072014e-308");
    EXPECT_EQ(TextOf(PropertyTree(HUGE_VAL)), "inf");
    EXPECT_EQ(TextOf(PropertyTree(-HUGE_VAL)), "-inf");
    EXPECT_EQ(TextOf(PropertyTree(std::nan(""))), "nan");
}

TEST(PropertyTreeOutput, TextsAndKeysAreEscaped)
{
    EXPECT_EQ(TextOf(PropertyTree("a \"text\" and a \\")), R"("a \"text\" and a \\")");
    EXPECT_EQ(TextOf(PropertyTree("\t\n\r")), R"("\t\n\r")");
    EXPECT_EQ(TextOf(PropertyTree(std::string("\0\x1b\x7f", 3))), R"("\x00\x1b\x7f")");
    EXPECT_EQ(TextOf(Map({{"a\"\n", 1}})), R"({"a\"\n": 1})");
}

TEST(PropertyTreeOutput, ValidUtf8IsLeftAsItIs)
{
    EXPECT_EQ(TextOf(PropertyTree("Gr\xc3\xb6\xc3\x9f"
                                  "e \xe2\x82\xac \xf0\x9f\x99\x82 \xf4\x8f\xbf\xbf")),
              "\"Gr\xc3\xb6\xc3\x9f"
              "e \xe2\x82\xac \xf0\x9f\x99\x82 \xf4\x8f\xbf\xbf\"");
    EXPECT_EQ(TextOf(PropertyTree("\xc2\xa0\xed\x9f\xbf\xee\x80\x80")), "\"\xc2\xa0\xed\x9f\xbf\xee\x80\x80\"");
}

TEST(PropertyTreeOutput, OtherBytesAreEscaped)
{
    EXPECT_EQ(TextOf(PropertyTree("\xc2\x9b")), R"("\xc2\x9b")") << "a control character, which a terminal obeys";
    EXPECT_EQ(TextOf(PropertyTree("\xff|\x80|\xc3")), R"("\xff|\x80|\xc3")") << "no character";
    EXPECT_EQ(TextOf(PropertyTree("\xc0\xaf|\xe0\x9f\xbf|\xf0\x8f\xbf\xbf")), R"("\xc0\xaf|\xe0\x9f\xbf|\xf0\x8f\xbf\xbf")")
        << "longer than need be";
    EXPECT_EQ(TextOf(PropertyTree("\xed\xa0\x80|\xed\xbf\xbf|\xf4\x90\x80\x80")),
              R"("\xed\xa0\x80|\xed\xbf\xbf|\xf4\x90\x80\x80")")
        << "surrogates, and above U+10FFFF";
    EXPECT_EQ(TextOf(PropertyTree("\xe2\x82")), R"("\xe2\x82")") << "cut off";
}

struct Thousands : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(PropertyTreeOutput, TheStreamsSettingsHaveNoEffect)
{
    std::ostringstream out;
    out.imbue(std::locale(out.getloc(), new Thousands));
    out << std::hex << std::showpos << std::uppercase << std::boolalpha << std::setprecision(2) << std::setfill('*')
        << std::setw(40) << List({12345, 1234.5, true});
    EXPECT_EQ(out.width(), 0);
    out << std::setw(40) << PropertyTreeScalar(1234567);
    EXPECT_EQ(out.width(), 0);
    EXPECT_EQ(out.str(), "[12345, 1234.5, true]1234567");
}

TEST(PropertyTreeOutput, AFailingStreamEndsIt)
{
    std::ostringstream out;
    out.setstate(std::ios_base::failbit);
    out << Map({{"a", List({1, 2})}});
    EXPECT_TRUE(out.fail());
    EXPECT_EQ(out.str(), "");
    std::ostringstream throwing;
    throwing.exceptions(std::ios_base::badbit);
    EXPECT_THROW(throwing.setstate(std::ios_base::badbit), std::ios_base::failure);
}

TEST(PropertyTreeOutput, DeepTreesTakeNoStack)
{
    constexpr std::size_t levels = 1'000'000;
    for (const bool isList : {true, false})
    {
        PropertyTree tree(1);
        for (std::size_t level = 0; level < levels; ++level)
        {
            PropertyTree outer;
            (isList ? outer.makeList(1).emplace_back() : outer.makeMap(1)["k"]) = std::move(tree);
            tree = std::move(outer);
        }
        const std::string text = TextOf(tree);
        EXPECT_EQ(text.size(), isList ? 2 * levels + 1 : 7 * levels + 1);
        EXPECT_EQ(text.substr(0, 5), isList ? "[[[[[" : "{\"k\":");
        EXPECT_EQ(text.substr(text.size() - 3), isList ? "]]]" : "}}}");
    }
}

TEST(PropertyTreeOutput, IsWhatAFailedExpectationShows)
{
    EXPECT_EQ(testing::PrintToString(Map({{"a", List({1, "b"})}})), R"({"a": [1, "b"]})");
    EXPECT_EQ(testing::PrintToString(PropertyTreeScalar(2.0)), "2.0");
}

} // namespace

// Things that convert into a tree are printed as what they are.
namespace WithAllNamesAtHand
{

using namespace Ombrel;

struct ConvertsToATree
{
    operator PropertyTree() const { return "tree"; }
};

template <class T>
concept Printable = requires(std::ostream& out, const T& value)
{
    out << value;
};

TEST(PropertyTreeOutput, TakesExactlyTreesAndScalars)
{
    std::ostringstream out;
    out << 5 << ' ' << 2.5 << " text " << std::string("string ") << std::string_view("view ") << true << ' ' << 'c' << ' '
        << PropertyTree(5.0) << ' ' << PropertyTreeScalar("s");
    EXPECT_EQ(out.str(), "5 2.5 text string view 1 c 5.0 \"s\"");
    EXPECT_TRUE(Printable<PropertyTree> && Printable<PropertyTreeScalar>);
    EXPECT_FALSE(Printable<ConvertsToATree>);
    EXPECT_FALSE(Printable<PropertyTree::Map>);
    EXPECT_FALSE(Printable<std::vector<bool>>);
}

} // namespace WithAllNamesAtHand
