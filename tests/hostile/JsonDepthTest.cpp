#include "PropertyTreeJson/PropertyTreeJson.h"
#include "support/SmallStack.h"

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

// A text may nest as deep as it is long: neither reading nor failing may need more stack for it.
namespace Ombrel
{
namespace
{

// The checks of the sanitizers take stack of their own; a million levels of recursion would not fit this either.
constexpr std::size_t STACK_SIZE = (Support::HAS_SANITIZER ? 1024 : 256) * 1024;

std::string Nested(std::size_t levels, std::string_view open, std::string_view inner, std::string_view close)
{
    std::string text;
    text.reserve(levels * (open.size() + close.size()) + inner.size());
    for (std::size_t i = 0; i < levels; ++i)
    {
        text += open;
    }
    text += inner;
    for (std::size_t i = 0; i < levels; ++i)
    {
        text += close;
    }
    return text;
}

struct DeepText
{
    const char* name;
    std::size_t repetitions;
    const char* open;
    const char* inner;
    const char* close;
};

void PrintTo(const DeepText& shape, std::ostream* out)
{
    *out << shape.name;
}

class JsonDepth : public testing::TestWithParam<DeepText>
{
};

TEST_P(JsonDepth, MillionLevelsNeedNoStack)
{
    const DeepText& shape = GetParam();
    Support::RunOnStack(STACK_SIZE,
                        [&shape]
                        {
                            const std::string text = Nested(shape.repetitions, shape.open, shape.inner, shape.close);
                            const PropertyTree tree = ReadJson(text, {.maxDepth = 2000000});
                            EXPECT_TRUE(WriteJson(tree) == text) << "the text changed";
                        });
}

// The text breaks off at its deepest point: the half-made tree and the path to the place have a million levels as well.
TEST_P(JsonDepth, MillionLevelsNeedNoStackToFail)
{
    const DeepText& shape = GetParam();
    Support::RunOnStack(STACK_SIZE,
                        [&shape]
                        {
                            const std::string text = Nested(shape.repetitions, shape.open, "x", "");
                            try
                            {
                                ReadJson(text, {.maxDepth = 2000000});
                                ADD_FAILURE() << "was read";
                            }
                            catch (const JsonError& error)
                            {
                                EXPECT_EQ(error.column(), text.size());
                                EXPECT_GE(error.path().size(), 1999999U);
                            }
                        });
}

INSTANTIATE_TEST_SUITE_P(Shapes, JsonDepth,
                         testing::Values(DeepText{"Lists", 1000000, "[", "1.5", "]"},
                                         DeepText{"Maps", 1000000, R"({"a":)", "null", "}"},
                                         DeepText{"Mixed", 500000, R"([{"a":)", "{}", "}]"},
                                         DeepText{"WithNeighbours", 500000, R"([0,{"a":[],"b":)", "true", R"(,"c":1},"x"])"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(JsonDepthLimit, Is4096ByDefault)
{
    const auto work = []
    {
        EXPECT_TRUE(ReadJson(Nested(4096, "[", "", "]")).isList());
        EXPECT_TRUE(ReadJson(Nested(2048, R"({"a":[)", "", "]}")).contains("a"));
        EXPECT_TRUE(ReadJson(Nested(4096, "[", "1", "]")).isList()) << "a scalar is no level";
        EXPECT_THROW(ReadJson(Nested(4097, "[", "", "]")), JsonError);
        EXPECT_THROW(ReadJson(Nested(2048, R"({"a":[)", "{}", "]}")), JsonError);
    };
    Support::RunOnStack(STACK_SIZE, work);
}

struct LimitedText
{
    std::size_t maxDepth;
    const char* text;
    const char* message; // null if the text is within the limit
};

constexpr LimitedText LIMITED[] = {
    {0, "1", nullptr},
    {0, " null", nullptr},
    {0, " []", "1:2: nested deeper than 0 levels"},
    {0, "{", "1:1: nested deeper than 0 levels"},
    {1, "[]", nullptr},
    {1, R"({"a": 1})", nullptr},
    {1, "[7, []]", "1:5: at 1: nested deeper than 1 levels"},
    {2, "[[], [], {}]", nullptr},
    {2, R"([{"a": 1,
  "b":
   {}}])",
     "3:4: at 0/b: nested deeper than 2 levels"},
};

TEST(JsonDepthLimit, PointsAtTheBracketThatIsTooMuch)
{
    for (const LimitedText& row : LIMITED)
    {
        std::optional<std::string> message;
        try
        {
            ReadJson(row.text, {.maxDepth = row.maxDepth});
        }
        catch (const JsonError& error)
        {
            message = error.what();
        }
        const std::optional<std::string> expected = row.message ? std::optional<std::string>(row.message) : std::nullopt;
        EXPECT_EQ(message, expected) << row.text << " with the limit " << row.maxDepth;
    }
}

} // namespace
} // namespace Ombrel
