#include "Inspection/Nearest.h"

#include <algorithm>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

constexpr std::size_t CHANGE = 2;        // of one character, in halves
constexpr std::size_t LONGEST_TEXT = 64; // nobody mistypes more

char Lower(char c) noexcept
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::size_t CostOf(char a, char b) noexcept
{
    return a == b ? 0 : Lower(a) == Lower(b) ? CHANGE / 2 : CHANGE;
}

} // namespace

// A third of the characters may differ.
NearestName::NearestName(std::string_view text) : m_text(text), m_distance(text.size() * CHANGE / 3 + 1) {}

void NearestName::Try(std::string_view name)
{
    if (m_text.size() > LONGEST_TEXT || name.size() > LONGEST_TEXT)
    {
        return;
    }
    const std::size_t longer = std::max(name.size(), m_text.size());
    const std::size_t shorter = std::min(name.size(), m_text.size());
    if ((longer - shorter) * CHANGE >= m_distance)
    {
        return;
    }
    if (const std::size_t distance = DistanceTo(name); distance < m_distance)
    {
        m_distance = distance;
        m_nearest = name;
    }
}

// The usual table of distances between beginnings, of which three rows are kept.
std::size_t NearestName::DistanceTo(std::string_view name)
{
    const std::size_t width = name.size() + 1;
    m_rows.assign(3 * width, 0);
    std::size_t* before = m_rows.data();
    std::size_t* last = before + width;
    std::size_t* row = last + width;
    for (std::size_t column = 0; column != width; ++column)
    {
        last[column] = column * CHANGE;
    }
    for (std::size_t line = 1; line <= m_text.size(); ++line)
    {
        row[0] = line * CHANGE;
        for (std::size_t column = 1; column != width; ++column)
        {
            row[column] = std::min({last[column] + CHANGE, row[column - 1] + CHANGE,
                                    last[column - 1] + CostOf(m_text[line - 1], name[column - 1])});
            if (line > 1 && column > 1 && m_text[line - 1] == name[column - 2] && m_text[line - 2] == name[column - 1])
            {
                row[column] = std::min(row[column], before[column - 2] + CHANGE);
            }
        }
        std::swap(before, last);
        std::swap(last, row);
    }
    return last[width - 1];
}

} // namespace Ombrel::Inspection
