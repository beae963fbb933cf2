#include "PropertyTree/PropertyTreeOutput.h" // shows a tree in a failed expectation
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace Ombrel
{
namespace
{

std::optional<JsonWriteError> ErrorOf(const PropertyTree& tree)
{
    try
    {
        WriteJson(tree);
    }
    catch (const JsonWriteError& error)
    {
        return error;
    }
    return std::nullopt;
}

PropertyTree SampleTree()
{
    PropertyTree tree;
    tree["name"] = "blur";
    tree["on"] = true;
    tree["off"] = false;
    tree["none"] = PropertyTree();
    tree["map"].convertToMap();
    tree["list"].convertToList();
    tree["deep"]["row"].append(1);
    tree["deep"]["row"].append(2.0);
    tree["deep"]["row"].append(PropertyTree());
    tree["deep"]["row"].getList().back()["k"] = 3;
    return tree;
}

TEST(JsonWrite, IsOneLineWithoutSpacesByDefault)
{
    EXPECT_EQ(WriteJson(SampleTree()), R"({"deep":{"row":[1,2.0,{"k":3}]},"list":[],"map":{},)"
                                       R"("name":"blur","none":null,"off":false,"on":true})");
}

TEST(JsonWrite, IndentsByTheGivenNumberOfSpaces)
{
    EXPECT_EQ(WriteJson(SampleTree(), {.indent = 2}), R"({
  "deep": {
    "row": [
      1,
      2.0,
      {
        "k": 3
      }
    ]
  },
  "list": [],
  "map": {},
  "name": "blur",
  "none": null,
  "off": false,
  "on": true
})");
    PropertyTree list;
    list.append(1);
    EXPECT_EQ(WriteJson(list, {.indent = 1}), "[\n 1\n]");
}

// Each level on the way down and each on the way up is a line.
TEST(JsonWrite, IndentsNoFurtherThan64Levels)
{
    PropertyTree tree = 1;
    for (int i = 0; i < 67; ++i)
    {
        PropertyTree outer;
        outer.append(std::move(tree));
        tree = std::move(outer);
    }
    const std::string text = WriteJson(tree, {.indent = 3});
    const std::string at63 = "\n" + std::string(189, ' ');
    const std::string at64 = "\n" + std::string(192, ' ');
    EXPECT_NE(text.find(at63 + "[" + at64 + "[" + at64 + "[" + at64 + "[" + at64 + "1" + at64 + "]" + at64 + "]" + at64 + "]" +
                        at63 + "]\n"),
              std::string::npos)
        << text;
    EXPECT_EQ(ReadJson(text), tree);
}

TEST(JsonWrite, IndentedTextReadsBack)
{
    EXPECT_EQ(ReadJson(WriteJson(SampleTree(), {.indent = 4})), SampleTree());
}

TEST(JsonWrite, OrdersKeysByTheirBytes)
{
    PropertyTree tree;
    for (const char* key : {"b", "\xC3\xA4", "a", "B", "aa", "", "~", "10", "9"})
    {
        tree[key] = 0;
    }
    EXPECT_EQ(WriteJson(tree), "{\"\":0,\"10\":0,\"9\":0,\"B\":0,\"a\":0,\"aa\":0,\"b\":0,\"~\":0,\"\xC3\xA4\":0}");
}

TEST(JsonWrite, EscapesWhatMustBeEscapedAndNothingElse)
{
    EXPECT_EQ(WriteJson("\"\\\b\f\n\r\t"), R"("\"\\\b\f\n\r\t")");
    EXPECT_EQ(WriteJson("a\0\x01\x1b\x1f\x20\x7f/b"s), "\"a\\u0000\\u0001\\u001b\\u001f \x7f/b\"");
    EXPECT_EQ(WriteJson("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\xE2\x80\xA8"),
              "\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\xE2\x80\xA8\"");
    PropertyTree tree;
    tree["\n\0"sv] = 1;
    EXPECT_EQ(WriteJson(tree), R"({"\n\u0000":1})");
}

TEST(JsonWrite, TakesTheEdgesOfUtf8)
{
    for (const char* text : {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBF",
                             "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
    {
        EXPECT_EQ(WriteJson(text), "\"" + std::string(text) + "\"");
    }
}

TEST(JsonWrite, RefusesInvalidUtf8)
{
    for (const char* text : {"\x80",
                             "\xBF",
                             "\xC0\x80",
                             "\xC1\xBF",
                             "\xC2",
                             "\xC2\x7F",
                             "\xC2\xC0",
                             "\xE0\x9F\xBF",
                             "\xE2\x82",
                             "\xE2\x82\x7F",
                             "\xE2\x82\xC0",
                             "\xED\xA0\x80",
                             "\xF0\x8F\xBF\xBF",
                             "\xF0\x9F\x98",
                             "\xF0\x9F\x98\x20",
                             "\xF4\x90\x80\x80",
                             "\xF5\x80\x80\x80",
                             "\xFE",
                             "\xFF",
                             "good \xFF",
                             "\xC3\xA4\xA4"})
    {
        EXPECT_TRUE(ErrorOf(text)) << "was written: " << testing::PrintToString(text);
    }
}

TEST(JsonWrite, NamesThePathOfAnInvalidString)
{
    PropertyTree tree;
    tree["x/y"].append(1);
    tree["x/y"].append("\xFF");
    const std::optional<JsonWriteError> error = ErrorOf(tree);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->path(), "x~1y/1");
    EXPECT_STREQ(error->what(), "at x~1y/1: the string is not valid UTF-8");
}

TEST(JsonWrite, NamesThePathOfAnInvalidKey)
{
    PropertyTree tree;
    tree["a"]["fine"] = 1;
    tree["a"]["k\xFF"] = 1;
    const std::optional<JsonWriteError> error = ErrorOf(tree);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->path(), "a/k\xFF");
    EXPECT_STREQ(error->what(), R"(at a/k\xff: the key is not valid UTF-8)");
}

TEST(JsonAppend, AddsAtTheEnd)
{
    std::string text = "settings = ";
    AppendJson(text, PropertyTree(1.0));
    AppendJson(text, PropertyTree("x"), {.indent = 2});
    EXPECT_EQ(text, "settings = 1.0\"x\"");
}

// The text before holds a point, which must not be taken for one of the number.
TEST(JsonAppend, LooksAtItsOwnNumberOnly)
{
    std::string text = "0.5e ";
    AppendJson(text, PropertyTree(3.0));
    EXPECT_EQ(text, "0.5e 3.0");
}

TEST(JsonAppend, FailureLeavesTheTextAlone)
{
    PropertyTree tree;
    tree.append("fine");
    tree.append(std::numeric_limits<double>::infinity());
    std::string text = "before";
    EXPECT_THROW(AppendJson(text, tree), JsonWriteError);
    EXPECT_EQ(text, "before");
}

} // namespace
} // namespace Ombrel
