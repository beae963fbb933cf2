#include "PropertyTreeJson/JsonPlaces.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace
{

using namespace Ombrel;
using Steps = std::vector<std::string>;

// "line:column", or "" where there is no such value.
std::string PlaceIn(std::string_view text, const Steps& steps, const JsonReadOptions& options = {})
{
    const std::optional<JsonPlace> place = JsonPlaces(text, options).Find(steps);
    return place ? std::to_string(place->line) + ":" + std::to_string(place->column) : std::string();
}

constexpr std::string_view LOOK = "[\n"
                                  "  {\"name\": \"EFFECT_ACID\", \"smartBlur\": {\"lumaRadius\": 5, \"\": null}},\n"
                                  "  [], {},\n"
                                  "\ttrue, false, -1.5e3,\n"
                                  "  {\"z\": [1, [2, 3]], \"a/b~\": \"\\u0041\", \"\\u0062\": {\"c\": [[4]]}}\n"
                                  "]";

TEST(JsonPlaces, AreThoseWhereValuesBegin)
{
    EXPECT_EQ(PlaceIn(LOOK, {}), "1:1");
    EXPECT_EQ(PlaceIn(LOOK, {"0"}), "2:3");
    EXPECT_EQ(PlaceIn(LOOK, {"0", "name"}), "2:12");
    EXPECT_EQ(PlaceIn(LOOK, {"0", "smartBlur"}), "2:40");
    EXPECT_EQ(PlaceIn(LOOK, {"0", "smartBlur", "lumaRadius"}), "2:55");
    EXPECT_EQ(PlaceIn(LOOK, {"0", "smartBlur", ""}), "2:62");
    EXPECT_EQ(PlaceIn(LOOK, {"1"}), "3:3");
    EXPECT_EQ(PlaceIn(LOOK, {"2"}), "3:7");
    EXPECT_EQ(PlaceIn(LOOK, {"3"}), "4:2");
    EXPECT_EQ(PlaceIn(LOOK, {"4"}), "4:8");
    EXPECT_EQ(PlaceIn(LOOK, {"5"}), "4:15");
    EXPECT_EQ(PlaceIn(LOOK, {"6", "z", "1", "1"}), "5:17");
    EXPECT_EQ(PlaceIn(LOOK, {"6", "a/b~"}), "5:30");
    EXPECT_EQ(PlaceIn(LOOK, {"6", "b", "c", "0", "0"}), "5:58");
}

TEST(JsonPlaces, AreNothingForWhatIsNotThere)
{
    for (const Steps& steps : {Steps{"7"}, Steps{""}, Steps{"00"}, Steps{"-1"}, Steps{"+1"}, Steps{"0x"}, Steps{" 0"},
                               Steps{"0", "Name"}, Steps{"0", "name", "0"}, Steps{"0", "name", ""}, Steps{"1", "0"},
                               Steps{"2", "0"}, Steps{"2", ""}, Steps{"6", "z", "2"}, Steps{"18446744073709551616"}})
    {
        EXPECT_EQ(PlaceIn(LOOK, steps), "") << ::testing::PrintToString(steps);
    }
    EXPECT_EQ(PlaceIn("5", {"0"}), "");
    EXPECT_EQ(PlaceIn("5", {}), "1:1");
}

TEST(JsonPlaces, CanBeFollowedStepByStep)
{
    const JsonPlaces places(LOOK);
    using Value = JsonPlaces::Value;
    EXPECT_EQ(places.PlaceOf(Value::Top), (JsonPlace{.line = 1, .column = 1}));
    const std::optional<Value> last = places.Below(Value::Top, "6");
    ASSERT_TRUE(last);
    EXPECT_EQ(places.PlaceOf(*last), (JsonPlace{.line = 5, .column = 3}));
    const std::optional<Value> text = places.Below(*last, "a/b~");
    ASSERT_TRUE(text);
    EXPECT_EQ(places.PlaceOf(*text), (JsonPlace{.line = 5, .column = 30}));
    EXPECT_FALSE(places.Below(*last, "0"));
    EXPECT_FALSE(places.Below(*text, ""));
    EXPECT_FALSE(places.Below(Value::Top, "06"));
}

TEST(JsonPlaces, CountBytesWithoutAByteOrderMark)
{
    EXPECT_EQ(PlaceIn("\xEF\xBB\xBF[1]", {}), "1:1");
    EXPECT_EQ(PlaceIn("\xEF\xBB\xBF[1]", {"0"}), "1:2");
    EXPECT_EQ(PlaceIn("\xEF\xBB\xBF\n[1]", {"0"}), "2:2");
    EXPECT_EQ(PlaceIn("[\"\xC3\xA4\", 1]", {"1"}), "1:8");
    EXPECT_EQ(PlaceIn("[\r\n1]", {"0"}), "2:1");
    EXPECT_EQ(PlaceIn("[\r1]", {"0"}), "1:3");
}

TEST(JsonPlaces, ReadByTheSameOptions)
{
    EXPECT_EQ(PlaceIn(R"([ "NaN"])", {"0"}, {.nonFiniteAsText = true}), "1:3");
    EXPECT_THROW(JsonPlaces("[[1]]", {.maxDepth = 1}), JsonError);
    EXPECT_THROW(JsonPlaces("[1, 2]", {.maxValues = 2}), JsonError);
}

TEST(JsonPlaces, ThrowWhatAReadThrows)
{
    for (const std::string_view text : {"", "[1", "{\"a\": 1, \"a\": 2}", "[1] 2", "nul"})
    {
        std::string read;
        try
        {
            ReadJson(text);
        }
        catch (const JsonError& error)
        {
            read = error.what();
        }
        try
        {
            const JsonPlaces places(text);
            ADD_FAILURE() << text;
        }
        catch (const JsonError& error)
        {
            EXPECT_EQ(error.what(), read);
        }
    }
}

TEST(JsonPlaces, MoveAndOutliveTheText)
{
    std::string text = "[10, {\"key\": 20}]";
    JsonPlaces places(text);
    text.assign(text.size(), ' ');
    JsonPlaces moved(std::move(places));
    places = JsonPlaces("[[[]]]");
    EXPECT_EQ(moved.Find(Steps{"1", "key"}), (JsonPlace{1, 14}));
    EXPECT_EQ(places.Find(Steps{"0", "0"}), (JsonPlace{1, 3}));
    moved = std::move(places);
    EXPECT_EQ(moved.Find(Steps{"1", "key"}), std::nullopt);
}

TEST(JsonPlaces, OfADeepTextTakeNoStack)
{
    constexpr std::size_t depth = 200000;
    const std::string text = std::string(depth, '[') + std::string(depth, ']');
    const JsonPlaces places(text, {.maxDepth = depth});
    EXPECT_EQ(places.Find(Steps(depth - 1, "0")), (JsonPlace{1, depth}));
    EXPECT_EQ(places.Find(Steps(depth, "0")), std::nullopt);
}

} // namespace
