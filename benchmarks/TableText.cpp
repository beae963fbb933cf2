#include "TableText.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <iomanip>
#include <ostream>

namespace Ombrel::Benchmarks
{

std::string Formatted(const char* format, double value)
{
    char buffer[64];
    std::snprintf(buffer, sizeof(buffer), format, value);
    return buffer;
}

std::string FigureText(double value)
{
    if (value < 0.0995)
    {
        return Formatted("%.2g", value);
    }
    return Formatted(value < 9.995 ? "%.2f" : value < 99.95 ? "%.1f" : "%.0f", value);
}

std::string TimeText(double nanoseconds)
{
    const char* unit = " ns";
    double value = nanoseconds;
    for (const char* larger : {" us", " ms", " s"})
    {
        if (value < 999.5)
        {
            break;
        }
        value /= 1000;
        unit = larger;
    }
    return FigureText(value) + unit;
}

void Print(std::ostream& out, const std::vector<TableRow>& rows)
{
    std::vector<std::size_t> widths(rows.front().size());
    for (const TableRow& row : rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    for (std::size_t line = 0; line < rows.size(); ++line)
    {
        for (std::size_t i = 0; i < widths.size(); ++i)
        {
            out << "| " << (i == 0 ? std::left : std::right) << std::setw(static_cast<int>(widths[i])) << rows[line][i] << ' ';
        }
        out << "|\n";
        for (std::size_t i = 0; line == 0 && i < widths.size(); ++i)
        {
            out << '|' << std::string(widths[i] + 1, '-') << (i == 0 ? '-' : ':');
        }
        out << (line == 0 ? "|\n" : "");
    }
}

} // namespace Ombrel::Benchmarks
