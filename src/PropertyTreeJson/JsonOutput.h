#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_OUTPUT_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_OUTPUT_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace Ombrel
{

/// Adds the parts of a JSON text to a string. They are gathered in a buffer, since most are short.
class JsonOutput
{
public:
    explicit JsonOutput(std::string& text) noexcept : m_text(text), m_next(m_buffer) {}
    JsonOutput(const JsonOutput&) = delete;
    JsonOutput& operator=(const JsonOutput&) = delete;

    void Add(char byte)
    {
        if (Room() == 0)
        {
            Flush();
        }
        *m_next++ = byte;
    }

    void Add(std::string_view bytes)
    {
        if (bytes.size() > Room())
        {
            AddBeyondRoom(bytes);
            return;
        }
        m_next += bytes.copy(m_next, bytes.size());
    }

    /// Adds a line feed and so many spaces.
    void AddLine(std::size_t indent);

    void Add(std::int64_t value);

    /// Adds the shortest text that reads back as the same float and not as an integer. `value` must be finite.
    void Add(double value);

    /// Adds `text` as a JSON string. False if it is not valid UTF-8; part of it may then have been added.
    bool AddQuoted(std::string_view text);

    /// Moves what is still in the buffer into the string. To be called at the end.
    void Flush()
    {
        m_text.append(m_buffer, m_next);
        m_next = m_buffer;
    }

private:
    std::size_t Room() const noexcept { return static_cast<std::size_t>(std::end(m_buffer) - m_next); }
    void RequireRoom(std::size_t size);
    void AddSpaces(std::size_t count);
    void AddBeyondRoom(std::string_view bytes);
    bool AddIfShort(double value);

    std::string& m_text;
    char m_buffer[1024]; // not initialised
    char* m_next;        // behind the last byte in it
};

} // namespace Ombrel

#endif
