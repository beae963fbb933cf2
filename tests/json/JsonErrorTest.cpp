#include "PropertyTree/PropertyTreeOutput.h" // shows a tree in a failed expectation
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>

#include <gtest/gtest.h>

using namespace std::string_view_literals;

namespace Ombrel
{
namespace
{

std::optional<JsonError> ErrorOf(std::string_view text, const JsonReadOptions& options = {})
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

struct BadText
{
    const char* name;
    std::string_view text;
    std::size_t line;
    std::size_t column;
    const char* path;
    const char* message;
};

void PrintTo(const BadText& bad, std::ostream* out)
{
    *out << bad.name; // the text itself may hold line ends and zero bytes, which spoil a list of tests
}

class JsonErrors : public testing::TestWithParam<BadText>
{
};

TEST_P(JsonErrors, NamesPlacePathAndReason)
{
    const BadText& bad = GetParam();
    const std::optional<JsonError> error = ErrorOf(bad.text);
    ASSERT_TRUE(error) << "was read: " << testing::PrintToString(bad.text);
    EXPECT_EQ(error->line(), bad.line);
    EXPECT_EQ(error->column(), bad.column);
    EXPECT_EQ(error->path(), bad.path);
    EXPECT_STREQ(error->what(), bad.message);
}

std::string NameOf(const testing::TestParamInfo<BadText>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Syntax, JsonErrors,
    testing::Values(
        BadText{"Empty", "", 1, 1, "", "1:1: unexpected end of input; expected '[', '{', or a literal"},
        BadText{"OnlySpace", " \n ", 2, 2, "", "2:2: unexpected end of input; expected '[', '{', or a literal"},
        BadText{"OnlyByteOrderMark", "\xEF\xBB\xBF", 1, 1, "", "1:1: unexpected end of input; expected '[', '{', or a literal"},
        BadText{"HalfByteOrderMark", "\xEF\xBB", 1, 3, "", "1:3: invalid BOM; must be 0xEF 0xBB 0xBF if given"},
        BadText{"SecondByteOrderMark",
                "\xEF\xBB\xBF\xEF\xBB\xBF"
                "1",
                1, 1, "", "1:1: invalid literal"},
        BadText{"OpenList", "[", 1, 2, "0", "1:2: at 0: unexpected end of input; expected '[', '{', or a literal"},
        BadText{"OpenMap", "{", 1, 2, "", "1:2: unexpected end of input; expected string literal"},
        BadText{"ListWithoutEnd", "[1, 2\n", 2, 1, "", "2:1: unexpected end of input; expected ']'"},
        BadText{"MapWithoutEnd", R"({"a": 1)", 1, 8, "", "1:8: unexpected end of input; expected '}'"},
        BadText{"NothingBehindColon", R"({"a":)", 1, 6, "a",
                "1:6: at a: unexpected end of input; expected '[', '{', or a literal"},
        BadText{"CommaAtEndOfList", "[1, ]", 1, 5, "1", "1:5: at 1: unexpected ']'; expected '[', '{', or a literal"},
        BadText{"CommaAtEndOfMap", R"({"a": 1,})", 1, 9, "", "1:9: unexpected '}'; expected string literal"},
        BadText{"TwoCommas", "[1,,2]", 1, 4, "1", "1:4: at 1: unexpected ','; expected '[', '{', or a literal"},
        BadText{"NoCommaInList", "[7 \"b\"]", 1, 4, "", "1:4: unexpected string literal; expected ']'"},
        BadText{"NoCommaBeforeList", "[7[", 1, 3, "", "1:3: unexpected '['; expected ']'"},
        BadText{"NoCommaBehindNegative", "[-7[", 1, 4, "", "1:4: unexpected '['; expected ']'"},
        BadText{"NoCommaBehindFloat", "[2.5[", 1, 5, "", "1:5: unexpected '['; expected ']'"},
        BadText{"NoCommaInMap", R"({"a": 1 "b": 2})", 1, 9, "", "1:9: unexpected string literal; expected '}'"},
        BadText{"NoColon", R"({"a" 15})", 1, 6, "a", "1:6: at a: unexpected number literal; expected ':'"},
        BadText{"TwoColons", R"({"a":: 1})", 1, 6, "a", "1:6: at a: unexpected ':'; expected '[', '{', or a literal"},
        BadText{"NumberAsKey", R"({"a": {12: 1}})", 1, 8, "a", "1:8: at a: unexpected number literal; expected string literal"},
        BadText{"WrongClosingBracket", "[1}", 1, 3, "", "1:3: unexpected '}'; expected ']'"},
        BadText{"ClosingBracketOnly", "]", 1, 1, "", "1:1: unexpected ']'; expected '[', '{', or a literal"},
        BadText{"BadLiteral", "[true, nul]", 1, 11, "1", "1:11: at 1: invalid literal"},
        BadText{"LiteralInCapitals", "True", 1, 1, "", "1:1: invalid literal"},
        BadText{"NaNWithoutQuotes", "[NaN]", 1, 2, "0", "1:2: at 0: invalid literal"},
        BadText{"Comment", "// no\n1", 1, 1, "", "1:1: invalid literal"},
        BadText{"SingleQuotes", "['a']", 1, 2, "0", "1:2: at 0: invalid literal"},
        BadText{"ZeroByteForValue", "[\0]"sv, 1, 2, "0", "1:2: at 0: unexpected zero byte"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Strings, JsonErrors,
    testing::Values(
        BadText{"NoClosingQuote", "[\"abc", 1, 6, "0", "1:6: at 0: invalid string: missing closing quote"},
        BadText{"RawLineFeed", "\"a\nb\"", 1, 3, "", "1:3: invalid string: control character U+000A must be escaped"},
        BadText{"UnknownEscape", R"({"k": "a\q"})", 1, 10, "k",
                "1:10: at k: invalid string: forbidden character after backslash"},
        BadText{"ShortUnicodeEscape", R"("\u12")", 1, 6, "", R"(1:6: invalid string: '\u' must be followed by 4 hex digits)"},
        BadText{"HighSurrogateAlone", R"("\ud800x")", 1, 8, "",
                "1:8: invalid string: surrogate U+D800..U+DBFF must be followed by U+DC00..U+DFFF"},
        BadText{"LowSurrogateAlone", R"("\udc00")", 1, 7, "",
                "1:7: invalid string: surrogate U+DC00..U+DFFF must follow U+D800..U+DBFF"},
        BadText{"LastSurrogateAlone", R"("\uDFFF")", 1, 7, "",
                "1:7: invalid string: surrogate U+DC00..U+DFFF must follow U+D800..U+DBFF"},
        BadText{"LastHighSurrogateAlone", R"("\uDBFF\n")", 1, 9, "",
                "1:9: invalid string: surrogate U+D800..U+DBFF must be followed by U+DC00..U+DFFF"},
        BadText{"HighSurrogateTwice", R"("\ud800\udbff")", 1, 13, "",
                "1:13: invalid string: surrogate U+D800..U+DBFF must be followed by U+DC00..U+DFFF"},
        BadText{"BehindSurrogates", R"("\ud800\ue000")", 1, 13, "",
                "1:13: invalid string: surrogate U+D800..U+DBFF must be followed by U+DC00..U+DFFF"},
        BadText{"NoHexDigit", R"("\u00g0")", 1, 6, "", R"(1:6: invalid string: '\u' must be followed by 4 hex digits)"},
        BadText{"StrayContinuationByte", "[\"ab\x80\"]", 1, 5, "0", "1:5: at 0: invalid string: ill-formed UTF-8 byte"},
        BadText{"OverlongForm", "\"\xC0\xAF\"", 1, 2, "", "1:2: invalid string: ill-formed UTF-8 byte"},
        BadText{"EncodedSurrogate", "\"\xED\xA0\x80\"", 1, 3, "", "1:3: invalid string: ill-formed UTF-8 byte"},
        BadText{"BehindLastCodePoint", "\"\xF4\x90\x80\x80\"", 1, 3, "", "1:3: invalid string: ill-formed UTF-8 byte"},
        BadText{"CutSequence", "\"\xE2\x82\"", 1, 4, "", "1:4: invalid string: ill-formed UTF-8 byte"},
        BadText{"BadByteInKey", "{\"a\": {\"b\xFF\": 1}}", 1, 10, "a", "1:10: at a: invalid string: ill-formed UTF-8 byte"},
        BadText{"BadByteOutsideString", "[1, \xFF]", 1, 5, "1", "1:5: at 1: invalid literal"},
        BadText{"ColumnsCountBytes", "[\"\xC3\xA4\", x]", 1, 8, "1", "1:8: at 1: invalid literal"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Numbers, JsonErrors,
    testing::Values(
        BadText{"AboveInt64", "[0, 9223372036854775808]", 1, 5, "1", "1:5: at 1: the number does not fit a 64-bit integer"},
        BadText{"BelowInt64", "{\"a\":\n -9223372036854775809}", 2, 2, "a",
                "2:2: at a: the number does not fit a 64-bit integer"},
        BadText{"LargestUnsigned", "18446744073709551615", 1, 1, "", "1:1: the number does not fit a 64-bit integer"},
        BadText{"AboveUnsigned", "18446744073709551616", 1, 1, "", "1:1: the number does not fit a 64-bit integer"},
        BadText{"FloatOverflow", "[1e400]", 1, 2, "0", "1:2: at 0: the number does not fit a 64-bit float"},
        BadText{"NegativeFloatOverflow", "[7, -1e400 ]", 1, 5, "1", "1:5: at 1: the number does not fit a 64-bit float"},
        BadText{"JustAboveLargestFloat", "1.7976931348623159e308", 1, 1, "", "1:1: the number does not fit a 64-bit float"},
        BadText{"ExponentAboveInt64", "1e99999999999999999999", 1, 1, "", "1:1: the number does not fit a 64-bit float"},
        BadText{"LeadingZero", "[01]", 1, 3, "", "1:3: unexpected number literal; expected ']'"},
        BadText{"LeadingPlus", "+1", 1, 1, "", "1:1: invalid literal"},
        BadText{"NoDigitBeforePoint", "[.5]", 1, 2, "0", "1:2: at 0: invalid literal"},
        BadText{"NoDigitBehindPoint", "[1.]", 1, 4, "0", "1:4: at 0: invalid number; expected digit after '.'"},
        BadText{"CommaForPoint", "{\"a\": 1,5}", 1, 9, "", "1:9: unexpected number literal; expected string literal"},
        BadText{"MinusOnly", "-", 1, 2, "", "1:2: invalid number; expected digit after '-'"},
        BadText{"NoDigitInExponent", "1e+", 1, 4, "", "1:4: invalid number; expected digit after exponent sign"},
        BadText{"MinusBehindNumber", "1-", 1, 3, "", "1:3: invalid number; expected digit after '-'"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    DuplicateKeys, JsonErrors,
    testing::Values(BadText{"AtTop", R"({"a": 1, "a": 2})", 1, 10, "", R"(1:10: duplicate key "a")"},
                    BadText{"Nested",
                            "[{}, 7,\n"
                            " {\"smartBlur\": {\"radius\": 1.0,\n"
                            "\t \t  \"lumaRadius\": 1, \"z\": [2],   \"lumaRadius\": 1}}]",
                            3, 35, "2/smartBlur", R"(3:35: at 2/smartBlur: duplicate key "lumaRadius")"},
                    BadText{"SpelledInTwoWays", R"({"a/b": 1, "a\u002fb": 2})", 1, 12, "", R"(1:12: duplicate key "a/b")"},
                    BadText{"ControlCharacters", R"({"\u001b": 1, "\u001b": 2})", 1, 15, "", R"(1:15: duplicate key "\u001b")"},
                    BadText{"DeleteAndC1", "{\"\x7F\xC2\x9B\": 1, \"\\u007f\\u009b\": 2}", 1, 12, "",
                            R"(1:12: duplicate key "\u007f\u009b")"},
                    BadText{"BehindByteOrderMark", "\xEF\xBB\xBF{\"a\":1,\"a\":2}", 1, 8, "", R"(1:8: duplicate key "a")"}),
    NameOf);

// Keys are compared when their map ends, and the fault that comes first in the text counts.
INSTANTIATE_TEST_SUITE_P(
    DuplicateKeysFirst, JsonErrors,
    testing::Values(
        BadText{"BeforeBadValue", R"({"a": 1, "a": x})", 1, 10, "", R"(1:10: duplicate key "a")"},
        BadText{"BeforeMissingColon", R"({"a": 1, "a" 2})", 1, 10, "", R"(1:10: duplicate key "a")"},
        BadText{"BeforeTheEndOfTheText", R"({"a": 1, "a")", 1, 10, "", R"(1:10: duplicate key "a")"},
        BadText{"LongBeforeBadValue", R"({"b": 1, "a": 2, "b": 3, "c": 4, "d": [{"e": [1, 2, x]}]})", 1, 18, "",
                R"(1:18: duplicate key "b")"},
        BadText{"BehindBadValue", R"({"b": 1, "c": x, "b": 2})", 1, 15, "c", "1:15: at c: invalid literal"},
        BadText{"OutsideBeforeInside", R"({"b": 0, "b": {"a": 1, "a": 2}})", 1, 10, "", R"(1:10: duplicate key "b")"},
        BadText{"InsideBeforeOutside", R"({"b": {"a": 1, "a": 2}, "b": 0})", 1, 16, "b", R"(1:16: at b: duplicate key "a")"},
        BadText{"OutsideBeforeBadValueInside", R"([{"b": 0, "b": {"a": [1, "\q"]}}])", 1, 11, "0",
                R"(1:11: at 0: duplicate key "b")"},
        BadText{"InsideBeforeBadKeyOutside", R"([{"b": {"z": 1, "z": 2}, 7: 0}])", 1, 17, "0/b",
                R"(1:17: at 0/b: duplicate key "z")"},
        BadText{"FirstOfTwo", R"({"c": 0, "b": 1, "a": 2, "b": 3, "c": 4})", 1, 26, "", R"(1:26: duplicate key "b")"},
        BadText{"SecondOfThree", R"({"b": 1, "a": 2, "a": 3, "a": 4})", 1, 18, "", R"(1:18: duplicate key "a")"},
        BadText{"FirstOfTwoLevels", R"({"b": 0, "a": 1, "a": {"d": 0, "c": 1, "c": x}})", 1, 18, "",
                R"(1:18: duplicate key "a")"},
        BadText{"ListBetween", R"([[], {"b": [{}, {"y": 0, "x": 1, "y": [[x]]}]}])", 1, 34, "1/b/1",
                R"(1:34: at 1/b/1: duplicate key "y")"},
        BadText{"Empty", R"({"": 1, "": 2})", 1, 9, "", R"(1:9: duplicate key "")"},
        BadText{"InAnotherMapIsNone", R"([{"b": 1, "a": 2}, {"b": 1, "a": x}])", 1, 34, "1/a", "1:34: at 1/a: invalid literal"},
        BadText{"PrefixIsNone", R"({"ab": 1, "a": 2, "abc": x})", 1, 26, "abc", "1:26: at abc: invalid literal"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    UnexpectedTokens, JsonErrors,
    testing::Values(BadText{"MalformedString", R"([1 "a\q"])", 1, 7, "",
                            "1:7: invalid string: forbidden character after backslash"},
                    BadText{"MalformedNumber", "[1 -x]", 1, 5, "", "1:5: invalid number; expected digit after '-'"},
                    BadText{"MalformedLiteral", "[1 nul]", 1, 7, "", "1:7: invalid literal"},
                    BadText{"LargeNumber", "[1 1e999]", 1, 4, "", "1:4: unexpected number literal; expected ']'"},
                    BadText{"Literals", "{null", 1, 2, "", "1:2: unexpected null literal; expected string literal"},
                    BadText{"TrueBehindKey", R"({"a" true)", 1, 6, "a", "1:6: at a: unexpected true literal; expected ':'"},
                    BadText{"FalseBehindValue", "[[] false", 1, 5, "", "1:5: unexpected false literal; expected ']'"},
                    BadText{"ZeroByteForKey", "{\0"sv, 1, 2, "", "1:2: unexpected zero byte"},
                    BadText{"BadByteForComma", "[1 \xFF"sv, 1, 4, "", "1:4: invalid literal"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    BehindTheEnd, JsonErrors,
    testing::Values(BadText{"SecondValue", "{} []", 1, 4, "", "1:4: unexpected '['; expected end of input"},
                    BadText{"SecondNumber", "1 25", 1, 3, "", "1:3: unexpected number literal; expected end of input"},
                    BadText{"Bracket", "[1]]", 1, 4, "", "1:4: unexpected ']'; expected end of input"},
                    BadText{"Comma", "1,", 1, 2, "", "1:2: unexpected ','; expected end of input"},
                    BadText{"Rubbish", "null\nx", 2, 1, "", "2:1: invalid literal"},
                    BadText{"ZeroByte", "[1]\0"sv, 1, 4, "", "1:4: unexpected zero byte"},
                    BadText{"ZeroByteAtNumber", "1\0"sv, 1, 2, "", "1:2: unexpected zero byte"},
                    BadText{"ZeroByteAtNegative", "-0\0"sv, 1, 3, "", "1:3: unexpected zero byte"},
                    BadText{"ZeroByteAtFloat", "2.5\0"sv, 1, 4, "", "1:4: unexpected zero byte"},
                    BadText{"TextBehindZeroByte", "12 \n \0{"sv, 2, 2, "", "2:2: unexpected zero byte"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Paths, JsonErrors,
    testing::Values(BadText{"DeepList", "[[0, [1, 2, [x]]]]", 1, 14, "0/1/2/0", "1:14: at 0/1/2/0: invalid literal"},
                    BadText{"MapsAndLists", R"({"a": [{"b": {}}, {"c": {"d": x}}]})", 1, 31, "a/1/c/d",
                            "1:31: at a/1/c/d: invalid literal"},
                    BadText{"BehindClosedChild", R"({"a": {"b": 1}, "c": [x]})", 1, 23, "c/0", "1:23: at c/0: invalid literal"},
                    BadText{"BetweenElements", R"({"a": [[1] 2]})", 1, 12, "a",
                            "1:12: at a: unexpected number literal; expected ']'"},
                    BadText{"SlashAndTilde", R"({"a/b": {"~1": x}})", 1, 16, "a~1b/~01", "1:16: at a~1b/~01: invalid literal"},
                    BadText{"EmptyKeys", R"({"": {"": x}})", 1, 11, "/", "1:11: at /: invalid literal"},
                    BadText{"KeyFromHostileFile", R"({"\u001b[2J\u007f\n": x})", 1, 23, "\x1b[2J\x7f\n",
                            R"(1:23: at \u001b[2J\u007f\n: invalid literal)"},
                    BadText{"C1FromHostileFile", "{\"\xC2\x80\xC2\x9B\x32J\xC2\x9F\xC2\xA0\xC3\x84\": x}", 1, 18,
                            "\xC2\x80\xC2\x9B\x32J\xC2\x9F\xC2\xA0\xC3\x84",
                            "1:18: at \\u0080\\u009b2J\\u009f\xC2\xA0\xC3\x84: invalid literal"}),
    NameOf);

// Every beginning of a text is no text, whatever it cuts: a sequence of UTF-8, an escape, a number, a literal.
TEST(JsonTruncation, EveryBeginningIsRefused)
{
    constexpr std::string_view text =
        "\xEF\xBB\xBF{\"a\": [1, -2.5e-3, true, false, null], \"\xF0\x9F\x98\x80\": \"\\ud83d\\ude00\\n\", \"c\": {\"d\": {}}}";
    for (std::size_t length = 0; length < text.size(); ++length)
    {
        EXPECT_TRUE(ErrorOf(text.substr(0, length))) << "was read with " << length << " of " << text.size() << " bytes";
    }
    EXPECT_FALSE(ErrorOf(text)) << "the whole text was refused";
}

TEST(JsonTruncation, PointsBehindTheLastByte)
{
    constexpr std::string_view text = "{\n\"a\": [tru";
    const std::optional<JsonError> error = ErrorOf(text);
    ASSERT_TRUE(error);
    EXPECT_STREQ(error->what(), "2:10: at a/0: invalid literal");
}

TEST(JsonErrorObject, FailureLeavesTheTargetAlone)
{
    PropertyTree tree = 5;
    EXPECT_THROW(tree = ReadJson("[1, 2, x"), JsonError);
    EXPECT_EQ(tree, PropertyTree(5));
}

TEST(JsonErrorObject, CopiesWithoutThrowing)
{
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<JsonError>);
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<JsonWriteError>);
}

// The reason quotes no token: a token may be as long as the text.
TEST(JsonErrorObject, ReasonStaysShort)
{
    const std::optional<JsonError> error = ErrorOf("\"" + std::string(100000, 'x'));
    ASSERT_TRUE(error);
    EXPECT_STREQ(error->what(), "1:100002: invalid string: missing closing quote");
}

// Whoever makes such an error, with a reason that quotes the input too.
TEST(JsonErrorObject, MessageHasNoControlCharacters)
{
    for (unsigned code = 1; code < 0xA0; ++code)
    {
        const bool isControl = code < 0x20 || code >= 0x7F;
        const std::string character =
            code < 0x80 ? std::string(1, static_cast<char>(code)) : "\xC2" + std::string(1, static_cast<char>(code));
        const JsonError error(1, 2, "a" + character, "bad " + character);
        const JsonWriteError writeError("a" + character, "bad " + character);
        const std::string_view message = error.what();
        EXPECT_EQ(message.substr(5), writeError.what());
        EXPECT_EQ(message.find(character) == std::string_view::npos, isControl) << code;
        EXPECT_EQ(error.path(), "a" + character);
        EXPECT_EQ(writeError.path(), "a" + character);
    }
    EXPECT_STREQ(JsonError(1, 2, "\xC2\x9B", "bad \xC2\x85\xC2").what(), R"(1:2: at \u009b: bad \u0085\xc2)");
}

TEST(JsonErrorObject, MessageIsValidTextWhateverTheFile)
{
    const std::optional<JsonError> error = ErrorOf("{\"k\": \"\xFF\"}");
    ASSERT_TRUE(error);
    EXPECT_STREQ(error->what(), "1:8: at k: invalid string: ill-formed UTF-8 byte");
}

} // namespace
} // namespace Ombrel
