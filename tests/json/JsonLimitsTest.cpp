#include "PropertyTreeJson/PropertyTreeJson.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

// The limits that a program sets which reads texts of strangers.
namespace Ombrel
{
namespace
{

std::optional<JsonError> ErrorOf(std::string_view text, const JsonReadOptions& options)
{
    try
    {
        ReadJson(text, options);
    }
    catch (const JsonError& error)
    {
        return error;
    }
    return std::nullopt;
}

std::string MessageOf(std::string_view text, const JsonReadOptions& options)
{
    const std::optional<JsonError> error = ErrorOf(text, options);
    return error ? error->what() : "";
}

struct Limited
{
    std::size_t limit;
    std::string_view text;
    const char* message; // empty if the text is within the limit
};

constexpr Limited VALUES[] = {
    {0, "1", "1:1: more than 0 values"},
    {0, " {}", "1:2: more than 0 values"},
    {1, "1", ""},
    {1, "[]", ""},
    {1, "[null]", "1:2: at 0: more than 1 values"},
    {1, "\xEF\xBB\xBF[7]", "1:2: at 0: more than 1 values"},
    {2, "[-7]", ""},
    {4, R"([1, 2.5, "x"])", ""},
    {3, R"([1, 2.5, "x"])", "1:10: at 2: more than 3 values"},
    {3, "[1, 2, -2.5]", "1:8: at 2: more than 3 values"},
    {3, "[[], {}, true]", "1:10: at 2: more than 3 values"},
    {3, "[[], {}, []]", "1:10: at 2: more than 3 values"},
    {3, "[[[[]]]]", "1:4: at 0/0/0: more than 3 values"},
    {3, R"({"a": 1, "b": {}})", ""},
    {3, "{\"a\": 1,\n \"b\": {\"c/\": null}}", "2:14: at b/c~1: more than 3 values"},
    {2, R"({"a": 1, "a": 2})", R"(1:10: duplicate key "a")"},
};

TEST(JsonLimits, PointAtTheValueThatIsTooMuch)
{
    for (const Limited& row : VALUES)
    {
        EXPECT_EQ(MessageOf(row.text, {.maxValues = row.limit}), row.message) << row.text << " with the limit " << row.limit;
    }
}

constexpr Limited BYTES[] = {
    {0, "", "1:1: "}, // the fault of an empty text
    {0, "1", "1:1: the text is longer than 0 bytes"},
    {2, "[]", ""},
    {2, "[] ", "1:3: the text is longer than 2 bytes"},
    {5, "[1,\n2]", "2:2: the text is longer than 5 bytes"},
    {6, "[1,\n2]", ""},
    {4, "[1,\n2]", "2:1: the text is longer than 4 bytes"},
    {5, "\xEF\xBB\xBF[]", ""},
    {4, "\xEF\xBB\xBF[]", "1:2: the text is longer than 4 bytes"},
    {2, "\xEF\xBB\xBF[]", "1:1: the text is longer than 2 bytes"},
    {3, "nothing of it is read", "1:4: the text is longer than 3 bytes"},
};

TEST(JsonLimits, PointAtTheByteThatIsTooMuch)
{
    for (const Limited& row : BYTES)
    {
        const std::string message = MessageOf(row.text, {.maxBytes = row.limit});
        EXPECT_EQ(message.substr(0, row.text.empty() ? 5 : message.size()), row.message)
            << row.text << " with the limit " << row.limit;
    }
}

TEST(JsonLimits, AreInTheError)
{
    const std::optional<JsonError> values = ErrorOf(R"({"a": [1, 2]})", {.maxValues = 3});
    ASSERT_TRUE(values);
    EXPECT_EQ(values->line(), 1U);
    EXPECT_EQ(values->column(), 11U);
    EXPECT_EQ(values->path(), "a/1");
    const std::optional<JsonError> bytes = ErrorOf("[1,\n2]", {.maxBytes = 5});
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->line(), 2U);
    EXPECT_EQ(bytes->column(), 2U);
    EXPECT_EQ(bytes->path(), "");
}

TEST(JsonLimits, AreNoneByDefault)
{
    constexpr JsonReadOptions options;
    EXPECT_EQ(options.maxValues, std::numeric_limits<std::size_t>::max());
    EXPECT_EQ(options.maxBytes, std::numeric_limits<std::size_t>::max());
    std::string text = "[0";
    for (int i = 1; i < 100'000; ++i)
    {
        text += ",0";
    }
    text += "]";
    EXPECT_EQ(ReadJson(text).getList().size(), 100'000U);
    EXPECT_EQ(ReadJson(text, {.maxValues = 100'001, .maxBytes = 200'001}).getList().size(), 100'000U);
    EXPECT_EQ(MessageOf(text, {.maxValues = 100'000}), "1:200000: at 99999: more than 100000 values");
    EXPECT_EQ(MessageOf(text, {.maxBytes = 200'000}), "1:200001: the text is longer than 200000 bytes");
}

} // namespace
} // namespace Ombrel
