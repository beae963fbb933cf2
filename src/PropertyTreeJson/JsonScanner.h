#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_SCANNER_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_SCANNER_H

#include "PropertyTreeJson/JsonNumber.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace Ombrel
{

/// Reads the tokens of a JSON text one after another. A malformed one throws a `JsonFault` at the first byte that does not fit.
class JsonScanner
{
public:
    static constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

    explicit JsonScanner(std::string_view text) noexcept : m_begin(text.data()), m_next(m_begin), m_end(m_begin + text.size())
    {
    }

    std::size_t Offset() const noexcept { return static_cast<std::size_t>(m_next - m_begin); }
    bool IsAtEnd() const noexcept { return m_next == m_end; }

    void SkipByteOrderMark();

    /// Skips white space. The first byte of the next token, or 0 at the end of the text.
    char Next() noexcept
    {
        // Most tokens follow each other directly.
        if (m_next != m_end && *m_next > ' ')
        {
            return *m_next;
        }
        SkipWhiteSpace();
        return m_next == m_end ? '\0' : *m_next;
    }

    /// Steps over the byte that `Next` has found.
    void Skip() noexcept { ++m_next; }

    /// Steps over `literal`, whose first byte `Next` has found.
    void ReadLiteral(std::string_view literal);

    /// The content of the string whose quote `Next` has found: a part of the text, or of the scanner's memory if it has
    /// escapes.
    std::string_view ReadString();

    /// The number whose minus sign or first digit `Next` has found.
    JsonNumber ReadNumber();

private:
    void SkipWhiteSpace() noexcept;
    void SkipBeyondAscii();
    std::string_view ReadEscapedString(const char* start);
    void ReadEscape();
    void ReadUnicodeEscape();
    unsigned ReadHexDigits();
    void ReadDigits(JsonNumber& number) noexcept;
    bool IsAtDigit() const noexcept { return m_next != m_end && *m_next >= '0' && *m_next <= '9'; }

    void RequireDigit(const char* reason) const
    {
        if (!IsAtDigit())
        {
            Fail(reason);
        }
    }

    void Keep(const char* begin, const char* end) noexcept;
    void KeepCodePoint(unsigned codePoint) noexcept;
    [[noreturn]] void Fail(const std::string& reason) const;

    const char* const m_begin;
    const char* m_next;
    const char* const m_end;
    std::unique_ptr<char[]> m_memory; // of strings with escapes, as large as the rest of the text where the first one began
    char* m_kept = nullptr;           // behind the last byte in it
};

} // namespace Ombrel

#endif
