#include "ReferenceReader.h"

#include "PropertyTreeJson/MessageText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <locale.h>
#include <optional>
#include <stdlib.h>
#include <string>
#include <system_error>
#include <vector>

// The lexer asserts that strtod reads the whole of each number. That fails in a locale whose decimal point has several bytes.
// The value is not used here, so the assertion is switched off.
#define JSON_ASSERT(condition) static_cast<void>(0)
#include <nlohmann/json.hpp>

namespace Fuzz
{
namespace
{

using namespace Ombrel;

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view WHITE_SPACE = " \t\n\r";

// Iterates over the text and counts the bytes that the lexer has read. The parser reports no positions with its events.
class CountingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* position, std::size_t& count) noexcept : m_position(position), m_count(&count) {}

    reference operator*() const noexcept { return *m_position; }

    CountingIterator& operator++() noexcept
    {
        ++m_position;
        ++*m_count;
        return *this;
    }

    friend bool operator==(const CountingIterator& a, const CountingIterator& b) noexcept
    {
        return a.m_position == b.m_position;
    }

private:
    const char* m_position;
    std::size_t* m_count;
};

// The float of the option for those that JSON has no form for, behind the backslashes that keep a string apart from it.
std::optional<double> NonFiniteValue(std::string_view text)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    text.remove_prefix(std::min(text.find_first_not_of('\\'), text.size()));
    return text == "NaN"         ? std::optional(std::numeric_limits<double>::quiet_NaN())
           : text == "Infinity"  ? std::optional(infinity)
           : text == "-Infinity" ? std::optional(-infinity)
                                 : std::nullopt;
}

// Whether a number that does not fit a float is too large rather than too small. `lexeme` must not be zero.
[[maybe_unused]] bool IsLarge(std::string_view lexeme)
{
    const std::size_t exponentAt = std::min(lexeme.find_first_of("eE"), lexeme.size());
    const std::string_view mantissa = lexeme.substr(0, exponentAt);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto digit = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    if (exponentAt == lexeme.size())
    {
        return digit < point;
    }
    std::string_view exponent = lexeme.substr(exponentAt + 1);
    const bool isNegative = exponent.front() == '-';
    exponent.remove_prefix(std::min(exponent.find_first_of("0123456789"), exponent.size()));
    std::int64_t size = 0;
    if (std::from_chars(exponent.data(), exponent.data() + exponent.size(), size).ec != std::errc())
    {
        return !isNegative; // no number of digits makes up for an exponent beyond 64 bits
    }
    return isNegative ? point - digit > size : point - digit > -size;
}

// The reason in a message of the parser, without its position and without the token, which may be long or invalid UTF-8.
std::string_view ReasonIn(std::string_view message)
{
    const std::size_t dash = message.find(" - ");
    if (dash != std::string_view::npos)
    {
        message.remove_prefix(dash + 3);
    }
    return message.substr(0, message.find("; last read: "));
}

// Builds the tree from the parser's events. The parser prescribes the names of these functions and their result, where false
// means "stop". Here they return true, and throw on failure.
class Reader
{
public:
    using Json = nlohmann::json;

    Reader(std::string_view text, const JsonReadOptions& options)
        : m_text(text), m_options(options), m_start(text.starts_with(BYTE_ORDER_MARK) ? BYTE_ORDER_MARK.size() : 0),
          m_tokenEnd(m_start)
    {
    }

    PropertyTree Read()
    {
        if (m_text.size() > m_options.maxBytes)
        {
            Fail(std::max(m_options.maxBytes, m_start),
                 "the text is longer than " + std::to_string(m_options.maxBytes) + " bytes");
        }
        const char* begin = m_text.data();
        Json::sax_parse(CountingIterator(begin, m_count), CountingIterator(begin + m_text.size(), m_count), this);
        // The parser takes a zero byte for the end of the text.
        if (const std::size_t rest = SkipWhiteSpace(m_tokenEnd); rest != m_text.size())
        {
            Fail(rest, "unexpected zero byte");
        }
        return std::move(m_top);
    }

    bool null()
    {
        Add({}, m_count);
        return true;
    }

    bool boolean(bool value)
    {
        Add(value, m_count);
        return true;
    }

    bool number_integer(Json::number_integer_t value)
    {
        Add(value, IntegerEnd());
        return true;
    }

    bool number_unsigned(Json::number_unsigned_t value)
    {
        if (value > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
        {
            FailNumber();
        }
        Add(value, IntegerEnd());
        return true;
    }

    // The parser's value depends on the locale, and so do the characters of `lexeme`. Its length does not.
    bool number_float(Json::number_float_t, const std::string& lexeme)
    {
        const std::size_t start = NextToken();
        Add(ParseFloat(m_text.substr(start, lexeme.size())), start + lexeme.size());
        return true;
    }

    // `value` is the lexer's buffer, which the next string uses again. So it is copied and not moved from.
    bool string(const std::string& value)
    {
        const std::optional<double> number = m_options.nonFiniteAsText ? NonFiniteValue(value) : std::nullopt;
        if (!number)
        {
            Add(value, m_count);
        }
        else
        {
            Add(value.starts_with('\\') ? PropertyTree(value.substr(1)) : PropertyTree(*number), m_count);
        }
        return true;
    }

    bool binary(Json::binary_t&) { return false; } // never called: JSON text has no binary values

    bool start_object(std::size_t)
    {
        Open().convertToMap();
        return true;
    }

    bool key(const std::string& key)
    {
        const auto [entry, isNew] = m_open.back().tree->getMap().try_emplace(key, PropertyTree());
        if (!isNew)
        {
            Fail(NextToken(), "duplicate key \"" + key + '"');
        }
        m_open.back().entry = &*entry;
        m_tokenEnd = m_count;
        m_separator = ':';
        return true;
    }

    bool end_object() { return Close(); }

    bool start_array(std::size_t)
    {
        Open().convertToList();
        return true;
    }

    bool end_array() { return Close(); }

    bool parse_error(std::size_t readBytes, const std::string&, const nlohmann::detail::exception& exception)
    {
        constexpr int numberOverflow = 406;
        if (exception.id == numberOverflow)
        {
            FailNumber();
        }
        const std::string reason(ReasonIn(exception.what()));
        Fail(reason.starts_with("unexpected") ? NextToken() : readBytes - 1, reason);
    }

private:
    // A map or list that is not closed yet. The pointers stay valid: entries of a map never move, and a list does not grow
    // while one of its elements is open.
    struct Level
    {
        PropertyTree* tree;
        PropertyTree::Map::value_type* entry = nullptr; // the current one of a map, from its key to the end of its value
    };

    PropertyTree& NewChild()
    {
        if (m_values == m_options.maxValues)
        {
            Fail(NextToken(), "more than " + std::to_string(m_options.maxValues) + " values");
        }
        ++m_values;
        if (m_open.empty())
        {
            return m_top;
        }
        const Level& level = m_open.back();
        return level.entry ? level.entry->second : level.tree->getList().emplace_back();
    }

    void Add(PropertyTree&& value, std::size_t tokenEnd)
    {
        NewChild() = std::move(value);
        EndValue(tokenEnd);
    }

    void EndValue(std::size_t tokenEnd)
    {
        m_tokenEnd = tokenEnd;
        m_separator = m_open.empty() ? '\0' : ',';
        if (!m_open.empty())
        {
            m_open.back().entry = nullptr;
        }
    }

    PropertyTree& Open()
    {
        if (m_open.size() == m_options.maxDepth)
        {
            Fail(NextToken(), "nested deeper than " + std::to_string(m_options.maxDepth) + " levels");
        }
        PropertyTree& child = NewChild();
        m_open.push_back({&child});
        m_tokenEnd = m_count;
        m_separator = '\0';
        return child;
    }

    bool Close()
    {
        m_open.pop_back();
        EndValue(m_count);
        return true;
    }

    double ParseFloat(std::string_view lexeme) const
    {
        if (lexeme.find_first_of(".eE") == std::string_view::npos)
        {
            FailNumber(); // the parser reports an integer beyond 64 bits as a float
        }
#if defined(__cpp_lib_to_chars) && !defined(__i386__)
        double value = 0.0;
        const auto result = std::from_chars(lexeme.data(), lexeme.data() + lexeme.size(), value);
        if (result.ec == std::errc::result_out_of_range)
        {
            if (IsLarge(lexeme))
            {
                FailNumber();
            }
            return lexeme.starts_with('-') ? -0.0 : 0.0;
        }
        return value;
#else // a standard library without from_chars for floats, or with one that rounds some twice
        static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
        const double value = strtod_l(std::string(lexeme).c_str(), nullptr, classic);
        if (std::isinf(value))
        {
            FailNumber();
        }
        return value;
#endif
    }

    std::size_t SkipWhiteSpace(std::size_t offset) const
    {
        return std::min(m_text.find_first_not_of(WHITE_SPACE, offset), m_text.size());
    }

    // The offset of the first token after that of the last event. Skips one comma or colon, for which there are no events.
    std::size_t NextToken() const
    {
        const std::size_t offset = SkipWhiteSpace(m_tokenEnd);
        return IsSeparator(offset) ? SkipWhiteSpace(offset + 1) : offset;
    }

    bool IsSeparator(std::size_t offset) const
    {
        return m_separator != '\0' && offset < m_text.size() && m_text[offset] == m_separator;
    }

    // The lexer has read one byte beyond the number, but not at the end of the text, so its count does not tell.
    std::size_t IntegerEnd() const
    {
        std::size_t offset = NextToken();
        offset += m_text[offset] == '-' ? 1U : 0U;
        return m_text[offset] == '0' ? offset + 1 : std::min(m_text.find_first_not_of("0123456789", offset), m_text.size());
    }

    std::string PathText() const
    {
        MessageText::Path path;
        const bool isBetweenValues = m_separator == ',' && !IsSeparator(SkipWhiteSpace(m_tokenEnd));
        for (const Level& level : m_open)
        {
            const bool isInnermost = &level == &m_open.back();
            if (level.entry)
            {
                path.Add(level.entry->first);
            }
            else if (level.tree->isList() && !(isInnermost && isBetweenValues))
            {
                const std::size_t size = level.tree->getList().size();
                path.Add(isInnermost ? size : size - 1); // the innermost list does not contain the element yet
            }
        }
        return path.Text();
    }

    [[noreturn]] void FailNumber() const
    {
        Fail(NextToken(), "the number does not fit 64 bits");
    }

    [[noreturn]] void Fail(std::size_t offset, const std::string& reason) const
    {
        const std::string_view before = m_text.substr(0, offset);
        const auto lineFeeds = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
        const std::size_t lineStart = lineFeeds == 0 ? m_start : before.rfind('\n') + 1;
        throw JsonError(lineFeeds + 1, offset - lineStart + 1, PathText(), reason);
    }

    const std::string_view m_text;
    const JsonReadOptions& m_options;
    const std::size_t m_start; // offset behind the byte order mark
    std::size_t m_count = 0;   // bytes that the lexer has read
    std::size_t m_tokenEnd;    // offset behind the last event's token
    char m_separator = '\0';   // expected between the last event's token and the next one
    std::size_t m_values = 0;  // in the tree so far
    PropertyTree m_top;
    std::vector<Level> m_open;
};

} // namespace

PropertyTree ReadByReference(std::string_view text, const JsonReadOptions& options)
{
    return Reader(text, options).Read();
}

} // namespace Fuzz
