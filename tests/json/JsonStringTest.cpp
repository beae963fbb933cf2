#include "PropertyTree/PropertyTreeOutput.h" // shows a tree in a failed expectation
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

using namespace std::string_view_literals;

// Strings are looked at eight bytes at a time and written by way of a buffer. So what is not plain is tried at every place of
// strings of many lengths.
namespace Ombrel
{
namespace
{

constexpr std::size_t MAX_SIZE = 40;

// In memory of its own, so that the sanitizers see who looks behind the end.
class ExactText
{
public:
    explicit ExactText(std::string_view text) : m_bytes(std::make_unique<char[]>(text.size())), m_size(text.size())
    {
        text.copy(m_bytes.get(), m_size);
    }

    operator std::string_view() const { return {m_bytes.get(), m_size}; }

private:
    std::unique_ptr<char[]> m_bytes;
    std::size_t m_size;
};

// Plain text with `piece` at `place`.
std::string With(std::string_view piece, std::size_t place, std::size_t size)
{
    constexpr std::string_view plain = "The quick ~brown~ fox 'jumps' over [the] {dog} again.";
    return std::string(plain.substr(0, place)) + std::string(piece) + std::string(plain.substr(place, size - place));
}

struct Piece
{
    std::string_view content;
    std::string_view text;
};

constexpr Piece PIECES[] = {
    {"", ""},
    {"\"", "\\\""},
    {"\\", "\\\\"},
    {"\n", "\\n"},
    {"\0"sv, "\\u0000"},
    {"\x1F", "\\u001f"},
    {" ", " "},
    {"\x7F", "\x7F"},
    {"\xC2\x80", "\xC2\x80"},
    {"\xED\x9F\xBF", "\xED\x9F\xBF"},
    {"\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"},
    {"\xC3\xA4\n\"\xC3\xA4\xE2\x82\xAC", "\xC3\xA4\\n\\\"\xC3\xA4\xE2\x82\xAC"},
};

TEST(JsonStrings, AreReadAndWrittenWithAnythingAnywhere)
{
    for (const Piece& piece : PIECES)
    {
        for (std::size_t size = 0; size <= MAX_SIZE; ++size)
        {
            for (std::size_t place = 0; place <= size; ++place)
            {
                const std::string content = With(piece.content, place, size);
                const std::string text = '"' + With(piece.text, place, size) + '"';
                ASSERT_EQ(WriteJson(content), text) << size << ", " << place;
                ASSERT_EQ(ReadJson(ExactText(text)), PropertyTree(content)) << text;
                PropertyTree map;
                map[content] = 1;
                ASSERT_EQ(WriteJson(map), "{" + text + ":1}") << size << ", " << place;
                ASSERT_EQ(ReadJson(ExactText("{" + text + ":1}")), map) << text;
            }
        }
    }
}

TEST(JsonStrings, AreRefusedWithInvalidUtf8Anywhere)
{
    for (const std::string_view piece : {"\x80"sv, "\xC0\x80"sv, "\xFF"sv, "\xE2"sv, "\xED\xA0\x80"sv, "\xF4\x90\x80\x80"sv})
    {
        for (std::size_t size = 0; size <= MAX_SIZE; ++size)
        {
            for (std::size_t place = 0; place <= size; ++place)
            {
                const std::string content = With(piece, place, size);
                EXPECT_THROW(WriteJson(content), JsonWriteError) << testing::PrintToString(content);
                EXPECT_THROW(ReadJson(ExactText('"' + content + '"')), JsonError) << testing::PrintToString(content);
            }
        }
    }
}

TEST(JsonStrings, NameThePlaceOfAFaultAnywhere)
{
    for (const std::string_view piece : {"\n"sv, "\x80"sv, "\0"sv, "\x1F"sv, "\xFF"sv, ""sv})
    {
        for (std::size_t place = 0; place <= MAX_SIZE; ++place)
        {
            const std::string text = '"' + With(piece, place, place + piece.size() * 9);
            std::optional<std::size_t> column;
            try
            {
                ReadJson(ExactText(text));
            }
            catch (const JsonError& error)
            {
                column = error.column();
            }
            EXPECT_EQ(column, place + 2) << testing::PrintToString(text);
        }
    }
}

// Decoded strings are kept while the text is read: many, and long ones.
TEST(JsonStrings, WithEscapesAreManyAndLong)
{
    std::string text = "[";
    PropertyTree expected;
    for (int i = 0; i < 1000; ++i)
    {
        const std::string number = std::to_string(i);
        text += "{\"\\u006b" + number + "\\n\": \"\\ud83d\\ude00" + number + "\\/\"},";
        PropertyTree entry;
        entry["k" + number + "\n"] = "\xF0\x9F\x98\x80" + number + "/";
        expected.append(std::move(entry));
    }
    const std::string large(1024 * 1024, 'x');
    text += "\"\\t" + large + "\\u00e4\"]";
    expected.append("\t" + large + "\xC3\xA4");
    EXPECT_TRUE(ReadJson(ExactText(text)) == expected);
    EXPECT_TRUE(ReadJson(WriteJson(expected)) == expected);
}

// The value ends where the text ends, whatever is behind it.
TEST(JsonParts, OfALongerTextAreReadAlone)
{
    const auto part = [](std::string_view text, std::size_t size) { return ReadJson(text.substr(0, size)); };
    EXPECT_EQ(part("1234", 2), PropertyTree(12));
    EXPECT_EQ(part("1.25e3", 4), PropertyTree(1.25));
    EXPECT_EQ(part("1.25e35", 6), PropertyTree(1250.0));
    EXPECT_EQ(part("-0.5", 2), PropertyTree(0));
    EXPECT_EQ(part("\"ab\"\"", 4), PropertyTree("ab"));
    EXPECT_EQ(part("[]]", 2).getList().size(), 0U);
    EXPECT_TRUE(part("null,", 4).isNull());
    EXPECT_THROW(part("true", 3), JsonError);
    EXPECT_THROW(part("\"ab\"", 3), JsonError);
    EXPECT_THROW(part("\"\\u00e4\"", 6), JsonError);
    EXPECT_THROW(part("\"\xC3\xA4\"", 2), JsonError);
    EXPECT_THROW(part("1.5", 2), JsonError);
    EXPECT_THROW(part("1e5", 2), JsonError);
    EXPECT_THROW(part("\xEF\xBB\xBF", 2), JsonError);
    EXPECT_THROW(ReadJson({}), JsonError);
}

// White space is skipped eight spaces at a time.
TEST(JsonWhiteSpace, MayBeAsLongAsItWants)
{
    for (std::size_t size = 0; size <= MAX_SIZE; ++size)
    {
        const std::string space(size, ' ');
        for (const std::string& between : {space, "\r\n" + space, space + "\t", "\n" + space + "\n" + space})
        {
            const std::string text = between + "[" + between + "1" + between + "," + between + "2" + between + "]" + between;
            EXPECT_EQ(WriteJson(ReadJson(ExactText(text))), "[1,2]") << testing::PrintToString(between);
        }
    }
}

// Text that reaches the end of the writer's buffer at every place.
TEST(JsonBuffer, MayEndAnywhere)
{
    PropertyTree tail;
    tail.append("\xC3\xA4\n" + std::string(30, 'x'));
    tail.append(-1234567890123456789);
    tail.append(-1.2345678901234568e-300);
    tail.append(0.5);
    tail.append(true);
    tail.append("\"\\\"\\\"\\\"\\");
    constexpr std::string_view tailText =
        "[\"\xC3\xA4\\nxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx\",-1234567890123456789,-1.2345678901234568e-300,0.5,true,"
        R"("\"\\\"\\\"\\\"\\"])";
    for (std::size_t size = 850; size < 1100; ++size)
    {
        PropertyTree tree;
        tree.append(std::string(size, 'p'));
        tree.append(tail);
        ASSERT_EQ(WriteJson(tree), "[\"" + std::string(size, 'p') + "\"," + std::string(tailText) + "]") << size;
    }
    for (std::size_t indent : {31U, 32U, 1023U, 1024U, 1025U, 5000U})
    {
        PropertyTree tree;
        tree.append(7);
        EXPECT_EQ(WriteJson(tree, {.indent = static_cast<unsigned>(indent)}), "[\n" + std::string(indent, ' ') + "7\n]");
    }
}

TEST(JsonBuffer, LeavesNothingOfAnInvalidTree)
{
    PropertyTree tree;
    tree.append(std::string(5000, 'x'));
    tree.append("\xFF");
    std::string text = "before";
    EXPECT_THROW(AppendJson(text, tree), JsonWriteError);
    EXPECT_EQ(text, "before");
}

} // namespace
} // namespace Ombrel
