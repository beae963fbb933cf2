#ifndef OMBREL_BENCHMARKS_TABLE_TEXT_H
#define OMBREL_BENCHMARKS_TABLE_TEXT_H

#include <iosfwd>
#include <string>
#include <vector>

namespace Ombrel::Benchmarks
{

using TableRow = std::vector<std::string>;

std::string Formatted(const char* format, double value);

/// Three significant digits, but two below 0.1.
std::string FigureText(double value);

std::string TimeText(double nanoseconds);

/// The title to the left, the figures to the right, as a table that Markdown takes as well.
void Print(std::ostream& out, const std::vector<TableRow>& rows);

} // namespace Ombrel::Benchmarks

#endif
