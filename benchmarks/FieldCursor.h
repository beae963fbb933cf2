#ifndef OMBREL_BENCHMARKS_FIELD_CURSOR_H
#define OMBREL_BENCHMARKS_FIELD_CURSOR_H

#include <cstddef>
#include <string_view>

namespace Ombrel::Benchmarks
{

/// Walks once over the entries of a map, side by side with the fields that are asked for. Both are in key order.
template <class ItsFormat, class Iterator> class FieldCursor
{
public:
    using Format = ItsFormat;

    FieldCursor(Iterator first, Iterator end) : m_next(first), m_end(end) {}

    /// Calls `read` with the value under `key` if there is one. Entries before it that nobody has asked for are skipped.
    template <class Read> bool Find(std::string_view key, const Read& read)
    {
        for (; m_next != m_end; ++m_next)
        {
            auto&& entry = *m_next;
            const std::string_view its = Format::KeyOf(entry);
            if (its == key)
            {
                read(Format::ValueOf(entry));
                ++m_next;
                ++m_found;
                return true;
            }
            if (its > key)
            {
                return false;
            }
        }
        return false;
    }

    std::size_t Found() const { return m_found; }

private:
    Iterator m_next;
    Iterator m_end;
    std::size_t m_found = 0;
};

template <class Format, class Iterator> FieldCursor<Format, Iterator> MakeCursor(Iterator first, Iterator end)
{
    return {first, end};
}

} // namespace Ombrel::Benchmarks

#endif
