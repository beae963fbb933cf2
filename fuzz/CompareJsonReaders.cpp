#include "Fuzz.h"
#include "JsonComparison.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

// compare-json COUNT SEED FOLDER...: both readers of JSON on COUNT random texts, which are the same for the same SEED. Some are
// made of tokens, some are trees with faults, some are files of the folders that were changed here and there.
namespace
{

using namespace std::string_view_literals;

constexpr std::string_view TOKENS[] = {
    "{"sv,
    "}"sv,
    "["sv,
    "]"sv,
    ","sv,
    ":"sv,
    " "sv,
    "\n"sv,
    "\r\n\t"sv,
    "        "sv,
    "null"sv,
    "true"sv,
    "false"sv,
    "nul"sv,
    "0"sv,
    "-0"sv,
    "01"sv,
    "-"sv,
    "1.5"sv,
    "-0.0"sv,
    "1."sv,
    "2e"sv,
    "3E+"sv,
    "1e400"sv,
    "-1e-400"sv,
    "0e999999999999999999999"sv,
    "4.9e-324"sv,
    "2e-324"sv,
    "1.7976931348623158e308"sv,
    "123456789012345678"sv,
    "9223372036854775807"sv,
    "9223372036854775808"sv,
    "-9223372036854775808"sv,
    "-9223372036854775809"sv,
    "18446744073709551616"sv,
    "99999999999999999999.5"sv,
    "9007199254740993.0"sv,
    "0.1234567890123456789"sv,
    "\"\""sv,
    "\"a\""sv,
    "\"b\":"sv,
    "\"a\":"sv,
    "\"\\u0061\":"sv,
    "\"ab\":"sv,
    "\"\xC3\xA4\":"sv,
    "\"\\u00e4\":"sv,
    "\"\\u0000\\n\""sv,
    "\"\\ud83d\\ude00\""sv,
    "\"\\ud83d\\u0041\""sv,
    "\"\\udc00\""sv,
    "\"\\udfff\""sv,
    "\"\\udbff\\udfff\""sv,
    "\"\\u12"sv,
    "\"\\q"sv,
    "\"\xF0\x9F\x98\x80\""sv,
    "\"\xED\xA0\x80\""sv,
    "\"\xE2\x82"sv,
    "\"NaN\""sv,
    "\"\\\\Infinity\""sv,
    "\"-Infinity\""sv,
    "\"a text of more than sixteen characters\""sv,
    "\""sv,
    "\\"sv,
    "/"sv,
    "x"sv,
    "\0"sv,
    "\x7F"sv,
    "\xFF"sv,
    "\xEF\xBB\xBF"sv,
};

// No expression asks for two random numbers, since compilers differ in which comes first.
class Texts
{
public:
    Texts(std::uint64_t seed, std::vector<std::string> files) : m_engine(seed), m_files(std::move(files)) {}

    std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(m_engine() % limit); }

    std::string Next()
    {
        std::string text;
        switch (Below(4))
        {
        case 0:
            text = Tokens(Below(14));
            break;
        case 1:
            text = m_files[Below(m_files.size())];
            break;
        default:
            text = Value(4);
        }
        for (std::size_t changes = Below(2) == 0 ? 0 : Below(4); changes != 0; --changes)
        {
            Change(text);
        }
        return text;
    }

    Ombrel::JsonReadOptions Options(const std::string& text)
    {
        Ombrel::JsonReadOptions options{.nonFiniteAsText = Below(2) == 0};
        switch (Below(8))
        {
        case 0:
            options.maxDepth = Below(5);
            break;
        case 1:
            options.maxValues = Below(12);
            break;
        case 2:
            options.maxBytes = text.size() / 2 + Below(text.size() + 1);
            break;
        default:
            break;
        }
        return options;
    }

private:
    std::string Tokens(std::size_t count)
    {
        std::string text;
        for (; count != 0; --count)
        {
            text += TOKENS[Below(std::size(TOKENS))];
        }
        return text;
    }

    // A tree in which few keys are used often, mostly in their order.
    std::string Value(std::size_t levels)
    {
        const std::size_t kind = Below(levels == 0 ? 4 : 8);
        if (kind < 2)
        {
            return Number();
        }
        if (kind < 4)
        {
            return kind == 2 ? Quoted() : Tokens(1);
        }
        const bool isMap = kind < 7;
        std::string text(1, isMap ? '{' : '[');
        char key = 'a';
        for (std::size_t count = Below(5); count != 0; --count)
        {
            if (isMap)
            {
                key = Below(8) == 0 ? static_cast<char>('a' + Below(6)) : static_cast<char>(key + 1);
                const std::string escape = "\\u006" + std::string(1, static_cast<char>('0' + key % 8));
                text += '"' + (Below(8) == 0 ? escape : std::string(1, key)) + "\":";
            }
            text += Value(levels - 1);
            text += count == 1 ? "" : Below(4) == 0 ? ", " : ",";
            text += Below(16) == 0 ? "\n  " : "";
        }
        return text + (isMap ? '}' : ']');
    }

    std::string Number()
    {
        std::string text = Below(4) == 0 ? "-" : "";
        const std::size_t size = Below(8) == 0 ? 1 + Below(400) : 1 + Below(20);
        for (std::size_t i = 0; i < size; ++i)
        {
            text += static_cast<char>('0' + Below(10));
        }
        if (Below(2) == 0)
        {
            text.insert(text.size() - Below(size), ".");
        }
        if (Below(4) == 0)
        {
            text += Below(2) == 0 ? "e" : "E-";
            text += std::to_string(Below(Below(2) == 0 ? 400 : 20));
        }
        return text;
    }

    // With something that is not plain at any place of a run.
    std::string Quoted()
    {
        constexpr std::string_view pieces[] = {"\\n", "\\u00e4", "\\\"",           "\xC3\xA4",        "\xE2\x82\xAC",
                                               "\\/", "x",       "\\ud83d\\ude00", "\xF4\x8F\xBF\xBF"};
        std::string text(Below(20), 'p');
        for (std::size_t count = Below(4); count != 0; --count)
        {
            const std::size_t place = Below(2) == 0 ? text.size() : 0;
            text.insert(place, pieces[Below(std::size(pieces))]);
            text += std::string(Below(12), 'q');
        }
        return '"' + text + '"';
    }

    void Change(std::string& text)
    {
        const std::size_t at = Below(text.size() + 1);
        switch (Below(6))
        {
        case 0:
            text.insert(at, TOKENS[Below(std::size(TOKENS))]);
            break;
        case 1:
            text.erase(at, 1 + Below(3));
            break;
        case 2:
        {
            const std::string rest = text.substr(Below(text.size() + 1));
            text.insert(at, rest.substr(0, Below(24)));
            break;
        }
        case 3:
            text.resize(at);
            break;
        case 4:
            text.insert(at, 1, static_cast<char>(Below(256)));
            break;
        default:
            if (at != text.size())
            {
                text[at] = static_cast<char>(static_cast<unsigned char>(text[at]) ^ (1U << Below(8)));
            }
        }
    }

    std::mt19937_64 m_engine;
    std::vector<std::string> m_files;
};

std::vector<std::string> FilesOf(int count, char** folders)
{
    std::vector<std::filesystem::path> paths;
    for (int i = 0; i < count; ++i)
    {
        paths.insert(paths.end(), std::filesystem::directory_iterator(folders[i]), {});
    }
    std::ranges::sort(paths);
    std::vector<std::string> files;
    for (const std::filesystem::path& path : paths)
    {
        std::ifstream file(path, std::ios::binary);
        files.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return files;
}

std::uint64_t NumberOf(std::string_view text)
{
    std::uint64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    Fuzz::Require(result.ptr == text.data() + text.size(), "not a number", text);
    return value;
}

} // namespace

int main(int argc, char** argv)
{
    Fuzz::Require(argc > 3, "usage: compare-json COUNT SEED FOLDER...");
    const std::uint64_t count = NumberOf(argv[1]);
    Texts texts(NumberOf(argv[2]), FilesOf(argc - 3, argv + 3));
    std::uint64_t trees = 0;
    for (std::uint64_t i = 0; i < count; ++i)
    {
        const std::string text = texts.Next();
        trees += Fuzz::CompareReaders(text, texts.Options(text)) ? 1U : 0U;
    }
    Fuzz::Require(trees > count / 10 && trees < count - count / 10, "hardly any text is read, or hardly any refused");
    std::cout << count << " texts, " << trees << " of them trees\n";
    return EXIT_SUCCESS;
}
