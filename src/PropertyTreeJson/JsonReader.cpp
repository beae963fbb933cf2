#include "PropertyTreeJson/JsonFault.h"
#include "PropertyTreeJson/JsonOutput.h"
#include "PropertyTreeJson/JsonPlaceTable.h"
#include "PropertyTreeJson/JsonScanner.h"
#include "PropertyTreeJson/JsonText.h"
#include "PropertyTreeJson/JsonTreeBuilder.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <optional>
#include <string>

namespace Ombrel
{
namespace
{

// The grammar: what may follow what.
class Reader
{
public:
    Reader(std::string_view text, const JsonReadOptions& options, JsonPlaceTable* places)
        : m_text(text), m_options(options), m_scanner(text), m_places(places)
    {
    }
    PropertyTree Read()
    {
        try
        {
            if (m_text.size() > m_options.maxBytes)
            {
                Fail(std::max(m_options.maxBytes, MarkSize()),
                     "the text is longer than " + std::to_string(m_options.maxBytes) + " bytes");
            }
            m_builder.Reserve(m_text.size());
            m_scanner.SkipByteOrderMark();
            for (bool isDone = false; !isDone;)
            {
                isDone = ReadValue() && EndValues();
            }
            return m_builder.Result();
        }
        catch (const JsonFault& fault)
        {
            ThrowError(fault);
        }
    }

private:
    // False if the value is a map or list that has begun: the first value in it is to be read next.
    bool ReadValue()
    {
        m_isAtValue = true;
        const char first = m_scanner.Next();
        const std::size_t offset = m_scanner.Offset();
        switch (first)
        {
        case '{':
        case '[':
            return Open(first == '{');
        case '"':
            AddText(m_scanner.ReadString(), offset);
            break;
        case 'n':
            m_scanner.ReadLiteral("null");
            Add({}, offset);
            break;
        case 't':
            m_scanner.ReadLiteral("true");
            Add(true, offset);
            break;
        case 'f':
            m_scanner.ReadLiteral("false");
            Add(false, offset);
            break;
        default:
            if (!StartsNumber(first))
            {
                FailUnexpected("'[', '{', or a literal");
            }
            AddNumber(m_scanner.ReadNumber(), offset);
        }
        return true;
    }

    // Reads what follows a value, and ends the maps and lists that end there. False if another value is to be read next.
    bool EndValues()
    {
        m_isAtValue = false;
        while (m_builder.Depth() != 0)
        {
            const bool isInMap = m_builder.IsInMap();
            const char next = m_scanner.Next();
            if (next == ',')
            {
                m_scanner.Skip();
                if (isInMap)
                {
                    ReadKey();
                }
                return false;
            }
            if (next != (isInMap ? '}' : ']'))
            {
                FailUnexpected(isInMap ? "'}'" : "']'");
            }
            if (!Close())
            {
                Fail(m_scanner.Offset(), "duplicate key");
            }
            m_scanner.Skip();
        }
        m_scanner.Next();
        if (!m_scanner.IsAtEnd())
        {
            FailUnexpected("end of input");
        }
        return true;
    }

    bool Open(bool isMap)
    {
        if (m_builder.Depth() == m_options.maxDepth)
        {
            Fail(m_scanner.Offset(), "nested deeper than " + std::to_string(m_options.maxDepth) + " levels");
        }
        CountValue(m_scanner.Offset());
        m_scanner.Skip();
        m_builder.Open(isMap);
        if (m_places)
        {
            m_places->Open(isMap);
        }
        if (m_scanner.Next() == (isMap ? '}' : ']'))
        {
            m_scanner.Skip();
            return Close();
        }
        if (isMap)
        {
            ReadKey();
        }
        return false;
    }

    // False if a key occurs twice.
    bool Close()
    {
        if (m_places)
        {
            m_places->Close();
        }
        return m_builder.Close();
    }

    void ReadKey()
    {
        m_isAtValue = false;
        if (m_scanner.Next() != '"')
        {
            FailUnexpected("string literal");
        }
        const std::size_t offset = m_scanner.Offset();
        const std::string_view key = m_scanner.ReadString();
        m_builder.AddKey(key, offset);
        if (m_places)
        {
            m_places->AddKey(key);
        }
        m_isAtValue = true;
        if (m_scanner.Next() != ':')
        {
            FailUnexpected("':'");
        }
        m_scanner.Skip();
    }

    void AddText(std::string_view text, std::size_t offset)
    {
        if (!m_options.nonFiniteAsText || !JsonText::NeedsGuard(text))
        {
            Add(text, offset);
        }
        else if (const std::optional<double> number = JsonText::NonFiniteValue(text))
        {
            Add(*number, offset);
        }
        else
        {
            Add(text.substr(1), offset);
        }
    }

    void AddNumber(const JsonNumber& number, std::size_t offset)
    {
        if (number.isFloat)
        {
            AddNumber(number.ToFloat(), offset, "float");
        }
        else
        {
            AddNumber(number.ToInteger(), offset, "integer");
        }
    }

    template <class Number> void AddNumber(const std::optional<Number>& number, std::size_t offset, const char* kind)
    {
        if (!number)
        {
            Fail(offset, std::string("the number does not fit a 64-bit ") + kind);
        }
        Add(*number, offset);
    }

    void Add(const JsonTreeBuilder::Value& value, std::size_t offset)
    {
        CountValue(offset);
        m_builder.Add(value);
    }

    void CountValue(std::size_t offset)
    {
        if (m_values == m_options.maxValues)
        {
            Fail(offset, "more than " + std::to_string(m_options.maxValues) + " values");
        }
        ++m_values;
        if (m_places)
        {
            m_places->AddValue(offset);
        }
    }
    static bool StartsNumber(char byte) { return byte == '-' || (byte >= '0' && byte <= '9'); }

    // The next token is not one of those that may follow. If it is malformed, that is the fault.
    [[noreturn]] void FailUnexpected(const char* expected)
    {
        const char first = m_scanner.Next();
        const std::size_t offset = m_scanner.Offset();
        if (first == '\0' && !m_scanner.IsAtEnd())
        {
            Fail(offset, "unexpected zero byte");
        }
        Fail(offset, "unexpected " + TokenName(first) + "; expected " + expected);
    }

    std::string TokenName(char first)
    {
        switch (first)
        {
        case '\0':
            return "end of input";
        case '{':
        case '}':
        case '[':
        case ']':
        case ',':
        case ':':
            return {'\'', first, '\''};
        case '"':
            m_scanner.ReadString();
            return "string literal";
        case 'n':
            m_scanner.ReadLiteral("null");
            return "null literal";
        case 't':
            m_scanner.ReadLiteral("true");
            return "true literal";
        case 'f':
            m_scanner.ReadLiteral("false");
            return "false literal";
        default:
            if (!StartsNumber(first))
            {
                Fail(m_scanner.Offset(), "invalid literal");
            }
            m_scanner.ReadNumber();
            return "number literal";
        }
    }

    [[noreturn]] static void Fail(std::size_t offset, const std::string& reason) { throw JsonFault{offset, reason}; }

    // Keys are compared when their map ends, or here if there is a fault before: all keys that have been read precede it.
    [[noreturn]] void ThrowError(const JsonFault& fault) const
    {
        const std::optional<JsonTreeBuilder::Duplicate> duplicate = m_builder.FirstDuplicate();
        if (!duplicate)
        {
            ThrowError(fault.offset, m_builder.PathText(m_isAtValue), fault.reason);
        }
        std::string reason = "duplicate key ";
        JsonOutput output(reason);
        output.AddQuoted(duplicate->key);
        output.Flush();
        ThrowError(duplicate->offset, duplicate->path, reason);
    }

    [[noreturn]] void ThrowError(std::size_t offset, const std::string& path, const std::string& reason) const
    {
        const std::string_view before = m_text.substr(0, offset);
        const auto lineFeeds = static_cast<std::size_t>(std::ranges::count(before, '\n'));
        const std::size_t lineStart = lineFeeds == 0 ? MarkSize() : before.rfind('\n') + 1;
        throw JsonError(lineFeeds + 1, offset - lineStart + 1, path, reason);
    }

    std::size_t MarkSize() const
    {
        return m_text.starts_with(JsonScanner::BYTE_ORDER_MARK) ? JsonScanner::BYTE_ORDER_MARK.size() : 0;
    }

    const std::string_view m_text;
    const JsonReadOptions& m_options;
    JsonScanner m_scanner;
    JsonTreeBuilder m_builder;
    JsonPlaceTable* const m_places;
    std::size_t m_values = 0; // in the text so far
    bool m_isAtValue = false; // the next token belongs to a value, and not to a key or between two values
};

} // namespace

PropertyTree ReadJson(std::string_view text, const JsonReadOptions& options)
{
    return ReadJsonWithPlaces(text, options, nullptr);
}

PropertyTree ReadJsonWithPlaces(std::string_view text, const JsonReadOptions& options, JsonPlaceTable* places)
{
    return Reader(text, options, places).Read();
}
} // namespace Ombrel
