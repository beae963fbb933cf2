#include "PropertyTree/PropertyTreeOutput.h" // shows a tree in a failed expectation
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace Ombrel
{
namespace
{

PropertyTree ListOf(std::initializer_list<PropertyTree> elements)
{
    PropertyTree tree;
    tree.convertToList();
    tree.getList().assign(elements);
    return tree;
}

TEST(JsonRead, TakesAnyValueAtTheTop)
{
    EXPECT_TRUE(ReadJson("null").isNull());
    EXPECT_EQ(ReadJson("true"), PropertyTree(true));
    EXPECT_EQ(ReadJson("false"), PropertyTree(false));
    EXPECT_EQ(ReadJson("-17"), PropertyTree(-17));
    EXPECT_EQ(ReadJson("0.5"), PropertyTree(0.5));
    EXPECT_EQ(ReadJson(R"("text")"), PropertyTree("text"));
    EXPECT_EQ(ReadJson("[]"), ListOf({}));

    PropertyTree map;
    map.convertToMap();
    EXPECT_EQ(ReadJson("{}"), map);
}

TEST(JsonRead, BuildsNestedTrees)
{
    PropertyTree inner;
    inner["b"] = ListOf({1, 2.5, PropertyTree(), ListOf({}), true});
    inner["empty"].convertToMap();
    PropertyTree tree;
    tree["z"] = inner;
    tree["a"] = ListOf({ListOf({ListOf({"x"}), 2}), inner, 3});

    EXPECT_EQ(ReadJson(R"({"z": {"empty": {}, "b": [1, 2.5, null, [], true]},
                           "a": [[["x"], 2], {"b": [1, 2.5, null, [], true], "empty": {}}, 3]})"),
              tree);
}

// Strings that follow each other must not disturb each other, whichever is longer.
TEST(JsonRead, KeepsLongAndShortStringsApart)
{
    const std::string longText(1000, 'l');
    EXPECT_EQ(ReadJson("[\"s\", \"" + longText + "\", \"t\", {\"" + longText + "\": \"u\"}, \"\"]").getList()[1],
              PropertyTree(longText));
    PropertyTree map;
    map[longText] = "u";
    EXPECT_EQ(ReadJson("[\"s\", \"" + longText + "\", \"t\", {\"" + longText + "\": \"u\"}, \"\"]"),
              ListOf({"s", longText, "t", map, ""}));
}

TEST(JsonRead, SkipsWhiteSpaceAndByteOrderMark)
{
    EXPECT_EQ(ReadJson("\xEF\xBB\xBF \t\r\n[ 1\n,\t2\r]\n\n "), ListOf({1, 2}));
    EXPECT_EQ(ReadJson("\xEF\xBB\xBF"
                       "7"),
              PropertyTree(7));
}

TEST(JsonRead, ResolvesEscapes)
{
    EXPECT_EQ(ReadJson(R"("\"\\\/\b\f\n\r\t")"), PropertyTree("\"\\/\b\f\n\r\t"));
    EXPECT_EQ(ReadJson(R"("\u0041\u00e4\u20AC\ud83d\uDE00")"), PropertyTree("A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"));
    EXPECT_EQ(ReadJson(R"("\ud800\udc00\udbff\udfff")"), PropertyTree("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
    EXPECT_EQ(ReadJson(R"("\u007F\u0080\u07ff\u0800\ud7ff\ue000\uFFFF")"),
              PropertyTree("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"));
    EXPECT_EQ(ReadJson(R"("a\u0000b")"), PropertyTree("a\0b"s));
    EXPECT_EQ(ReadJson("\"\x7F\""), PropertyTree("\x7F"));
}

TEST(JsonRead, ResolvesEscapesInKeys)
{
    PropertyTree tree;
    tree["a\0b"sv] = 1;
    tree["\n"] = 2;
    tree[""] = 3;
    EXPECT_EQ(ReadJson(R"({"a\u0000b": 1, "\n": 2, "": 3})"), tree);
}

TEST(JsonRead, LooksAtTheGivenPartOfTheTextOnly)
{
    constexpr std::string_view text = "123456";
    EXPECT_EQ(ReadJson(text.substr(1, 3)), PropertyTree(234));
}

TEST(JsonRead, TakesTheSameKeyInDifferentMaps)
{
    EXPECT_EQ(ReadJson(R"([{"a": 1}, {"a": {"a": 2}}])").getList()[1]["a"]["a"], PropertyTree(2));
}

} // namespace
} // namespace Ombrel
