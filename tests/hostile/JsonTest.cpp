#include "PropertyTreeJson/PropertyTreeJson.h"
#include "catalogue/Catalogue.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>

// Whatever a text holds, reading it ends with a tree or with an error that names a place in the text. Nesting as deep as memory
// allows has tests of its own, and the reasons and places of single faults stand with the tests of the reader.
namespace Ombrel
{
namespace
{

constexpr std::size_t MEBIBYTE = 1024 * 1024;

std::optional<JsonError> ErrorOf(std::string_view text)
{
    try
    {
        ReadJson(text);
    }
    catch (const JsonError& error)
    {
        return error;
    }
    return std::nullopt;
}

// Whether line and column stand for a byte of the text or for the place behind its end.
bool IsWithin(std::string_view text, std::size_t line, std::size_t column)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
    {
        text.remove_prefix(byteOrderMark.size());
    }
    for (; line > 1; --line)
    {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos)
        {
            return false;
        }
        text.remove_prefix(end + 1);
    }
    return line == 1 && column >= 1 && column <= std::min(text.find('\n'), text.size()) + 1;
}

// Whether `text` has none of U+0000 to U+001F and U+007F to U+009F.
bool IsPrintable(std::string_view text)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    const auto isC1 = [](char a, char b) { return a == '\xC2' && static_cast<unsigned char>(b) < 0xA0; };
    return std::ranges::none_of(text, isControl) && std::ranges::adjacent_find(text, isC1) == text.end();
}

// A tree, which is then the same after a further round, or an error with a place.
void ExpectTreeOrError(std::string_view text)
{
    try
    {
        const PropertyTree tree = ReadJson(text);
        EXPECT_EQ(ReadJson(WriteJson(tree)), tree) << testing::PrintToString(text);
    }
    catch (const JsonError& error)
    {
        EXPECT_TRUE(IsWithin(text, error.line(), error.column())) << error.what() << " of " << testing::PrintToString(text);
        const std::string place = std::to_string(error.line()) + ":" + std::to_string(error.column()) + ": ";
        EXPECT_TRUE(std::string_view(error.what()).starts_with(place)) << error.what();
        EXPECT_TRUE(IsPrintable(error.what())) << error.what();
        EXPECT_NO_THROW(WriteJson(PropertyTree(error.what()))) << "no UTF-8: " << error.what();
    }
}

// A list of all effects with all their values.
PropertyTree SampleTree()
{
    PropertyTree tree;
    tree.convertToList();
    for (const Catalogue::Effect& effect : Catalogue::All())
    {
        PropertyTree form = Support::Map({{"name", PropertyTree(effect.classId)}});
        for (const Catalogue::Field& field : effect.fields)
        {
            form[field.key] = field.sample;
        }
        tree.append(std::move(form));
    }
    return tree;
}

// One effect of several kinds of value, with what a text may have besides.
constexpr std::string_view SAMPLE = "\xEF\xBB\xBF[{\"name\": \"EFFECT_SKETCH\", \"a\\u0000b\\n\": [1, -2, 2.5e-3, -0.0],\n"
                                    "  \"\xF0\x9F\x98\x80\": \"\\ud83d\\ude00\xC3\xA4\", \"flags\": [true, false, null],\r\n"
                                    "\t\"nested\": {\"\": {\"~/\": [[], {}]}}}, 9223372036854775807, 1e308]";

TEST(HostileJson, TheSamplesAreTrees)
{
    EXPECT_FALSE(ErrorOf(SAMPLE));
    EXPECT_EQ(ReadJson(WriteJson(SampleTree(), {.indent = 4})), SampleTree());
}

// Every beginning of a text is no text, and the fault stands where the text ends or before.
TEST(HostileJson, IsTruncatedAtEveryByte)
{
    const std::string effects = WriteJson(SampleTree());
    for (const std::string_view text : {SAMPLE, std::string_view(effects).substr(0, 4000)})
    {
        for (std::size_t length = 0; length < text.size(); ++length)
        {
            const std::string_view part = text.substr(0, length);
            const std::optional<JsonError> error = ErrorOf(part);
            ASSERT_TRUE(error) << "was read with " << length << " of " << text.size() << " bytes";
            ASSERT_TRUE(IsWithin(part, error->line(), error->column())) << error->what() << ", " << length << " bytes";
        }
    }
}

TEST(HostileJson, HasEveryByteReplacedByEveryOther)
{
    std::string text(SAMPLE);
    for (char& byte : text)
    {
        const char before = byte;
        for (int value = 0; value < 256; ++value)
        {
            byte = static_cast<char>(value);
            ExpectTreeOrError(text);
        }
        byte = before;
    }
}

TEST(HostileJson, HasEveryByteTakenOutOrDoubled)
{
    for (std::size_t i = 0; i < SAMPLE.size(); ++i)
    {
        ExpectTreeOrError(std::string(SAMPLE).erase(i, 1));
        ExpectTreeOrError(std::string(SAMPLE).insert(i, 1, SAMPLE[i]));
    }
}

// The engine gives the same numbers everywhere, and nothing else of the library's random numbers does.
class HostileJsonRandom : public testing::Test
{
protected:
    std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(m_engine() % limit); }

private:
    std::mt19937_64 m_engine{20240607};
};

TEST_F(HostileJsonRandom, Bytes)
{
    for (int i = 0; i < 20000; ++i)
    {
        std::string text(Below(64), '\0');
        std::ranges::generate(text, [this] { return static_cast<char>(Below(256)); });
        ExpectTreeOrError(text);
    }
}

// What looks like JSON comes further than what does not.
TEST_F(HostileJsonRandom, Tokens)
{
    constexpr std::string_view tokens[] = {
        "{",
        "}",
        "[",
        "]",
        ",",
        ":",
        "\"a\"",
        "\"b\"",
        "\"\"",
        "\"\\u00e4\"",
        "\"\\u009b\":",
        "0",
        "-1",
        "1.5",
        "1e400",
        "-0",
        "true",
        "false",
        "null",
        " ",
        "\n",
        "\"a\":",
        "{\"a\":",
        "[[",
        "]]",
        "\\ud8",
        "\"",
        "\xFF",
        "\\",
        "99999999999999999999",
        "1e-400",
        std::string_view("\0", 1),
        "}}",
    };
    for (int i = 0; i < 50000; ++i)
    {
        std::string text;
        for (std::size_t count = Below(16); count != 0; --count)
        {
            text += tokens[Below(std::size(tokens))];
        }
        ExpectTreeOrError(text);
    }
}

TEST_F(HostileJsonRandom, ShuffledSample)
{
    for (int i = 0; i < 5000; ++i)
    {
        std::string text(SAMPLE);
        for (std::size_t changes = 1 + Below(4); changes != 0; --changes)
        {
            const std::size_t from = Below(text.size());
            const std::string piece = text.substr(from, Below(32));
            text.insert(Below(text.size() + 1), piece);
            text.erase(Below(text.size()), Below(32));
            if (text.empty())
            {
                break;
            }
        }
        ExpectTreeOrError(text);
    }
}

// Faults that only a large text has room for.
TEST(HostileJsonLarge, NamesThePlace)
{
    const std::string large(MEBIBYTE, 'x');
    const auto expect = [](const char* name, const std::string& text, std::size_t line, std::size_t column, const char* path)
    {
        SCOPED_TRACE(name);
        const std::optional<JsonError> error = ErrorOf(text);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->line(), line);
        EXPECT_EQ(error->column(), column);
        EXPECT_EQ(error->path(), path);
    };
    expect("a string without an end", "[7, \"" + large, 1, 6 + MEBIBYTE, "1");
    expect("a bad byte at the end of a string", "{\"a\":\n\"" + large + "\xFF\"}", 2, 2 + MEBIBYTE, "a");
    expect("a bad byte at the end of a key", "[{\"" + large + "\xC3\": 1}]", 1, 5 + MEBIBYTE, "0");
    expect("a long key twice", "{\"" + large + "\": 1,\n \"" + large + "\": 2}", 2, 2, "");
    expect("a long key on the way", "{\"" + large + "\":\n [x]}", 2, 3, (large + "/0").c_str());
    expect("nothing but lines", std::string(MEBIBYTE, '\n'), MEBIBYTE + 1, 1, "");
    expect("an integer of too many digits", "[" + std::string(MEBIBYTE, '9') + "]", 1, 2, "0");
    expect("a float of too many digits", "[" + std::string(MEBIBYTE, '9') + ".0]", 1, 2, "0");
    expect("an exponent of too many digits", "[1e" + std::string(MEBIBYTE, '9') + "]", 1, 2, "0");
}

TEST(HostileJsonLarge, ADuplicateAmongManyKeys)
{
    std::string text = "{";
    for (int i = 0; i < 100'000; ++i)
    {
        text += "\"" + std::to_string(i) + "\":0,\n";
    }
    const std::optional<JsonError> error = ErrorOf(text + "\"0\":1}");
    ASSERT_TRUE(error);
    EXPECT_STREQ(error->what(), "100001:1: duplicate key \"0\"");
}

TEST(HostileJsonLarge, AStringComesThrough)
{
    const PropertyTree tree = Support::List({PropertyTree(std::string(64 * MEBIBYTE, 'x'))});
    const std::string text = WriteJson(tree);
    EXPECT_EQ(text.size(), 64 * MEBIBYTE + 4);
    EXPECT_TRUE(ReadJson(text) == tree) << "the string changed";
}

TEST(HostileJsonLarge, AStringWithABadByteAtItsEnd)
{
    const std::string text = "[\"" + std::string(64 * MEBIBYTE, 'x') + "\xFF\"]";
    const std::optional<JsonError> error = ErrorOf(text);
    ASSERT_TRUE(error);
    EXPECT_STREQ(error->what(), "1:67108867: at 0: invalid string: ill-formed UTF-8 byte");
}

// The text that is read may stand in the tree that takes the result.
TEST(HostileJson, ATreeFromItsOwnText)
{
    PropertyTree tree = "[1, {\"a\": \"a text of more characters than a string keeps in itself\"}]";
    tree = ReadJson(tree.getScalar().toString());
    EXPECT_EQ(tree, Support::List({1, Support::Map({{"a", "a text of more characters than a string keeps in itself"}})}));
}

} // namespace
} // namespace Ombrel
