#include "TableReporter.h"

#include "Comparison.h"
#include "Goals.h"

#include <algorithm>
#include <cstdio>
#include <iomanip>
#include <ostream>
#include <sstream>
#include <utility>

namespace Ombrel::Benchmarks
{
namespace
{

using Row = std::vector<std::string>;

constexpr const char* UNKNOWN = "-"; // of a variant that was filtered out

#ifdef __clang__
constexpr const char* COMPILER = "clang " __clang_version__;
#else
constexpr const char* COMPILER = "g++ " __VERSION__;
#endif

/// Interpolated; `values` must not be empty.
double Quantile(std::vector<double> values, double fraction)
{
    std::ranges::sort(values);
    const double position = fraction * static_cast<double>(values.size() - 1);
    const auto below = static_cast<std::size_t>(position);
    const std::size_t above = std::min(below + 1, values.size() - 1);
    return values[below] + (values[above] - values[below]) * (position - static_cast<double>(below));
}

double Median(const std::vector<double>& values)
{
    return Quantile(values, 0.5);
}

/// How far the middle half of the rounds lies apart, in parts of the median.
double Spread(const std::vector<double>& values)
{
    return (Quantile(values, 0.75) - Quantile(values, 0.25)) / Median(values);
}

std::string Formatted(const char* format, double value)
{
    char buffer[64];
    std::snprintf(buffer, sizeof(buffer), format, value);
    return buffer;
}

/// Three significant digits, but two below 0.1.
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

/// The title to the left, the figures to the right, as a table that Markdown takes as well.
void Print(std::ostream& out, const std::vector<Row>& rows)
{
    std::vector<std::size_t> widths(rows.front().size());
    for (const Row& row : rows)
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

} // namespace

bool TableReporter::ReportContext(const Context& context)
{
    std::ostringstream load;
    for (const double average : context.cpu_info.load_avg)
    {
        load << ' ' << average;
    }
    GetOutputStream() << "Built by " << COMPILER << "; load averages before the run:" << load.str() << ".\n";
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        if (run.run_type != Run::RT_Iteration)
        {
            continue;
        }
        const std::string& name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        const auto [entry, isNew] = m_lines.try_emplace(name.substr(0, slash));
        Line& line = entry->second;
        line.place = isNew ? run.family_index : std::min(line.place, run.family_index);
        Result& result = line.variants[name.substr(slash + 1)];
        result.nanoseconds.push_back(run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9);
        result.allocations = run.counters.at(ALLOCATIONS).value;
    }
}

void TableReporter::Finalize()
{
    std::vector<std::pair<std::string, Line>> lines(m_lines.begin(), m_lines.end());
    std::ranges::sort(lines, {}, [](const auto& entry) { return entry.second.place; });

    std::vector<Row> rows{{"operation", LIBRARY, HAND_WRITTEN, NLOHMANN, RAPIDJSON, "library / hand-written",
                           "nlohmann / library", "RapidJSON / library", "allocations: library", HAND_WRITTEN, NLOHMANN}};
    std::map<std::string, Figure> figures;
    for (const auto& [title, line] : lines)
    {
        Row& row = rows.emplace_back(Row{title});
        for (std::string& cell : CellsOf(line))
        {
            row.push_back(std::move(cell));
        }
        for (const auto& [variant, result] : line.variants)
        {
            figures[title + '/' + variant] = {Median(result.nanoseconds), result.allocations};
        }
    }
    PrintRounds();
    Print(GetOutputStream(), rows);
    GetOutputStream() << '\n';
    PrintGoals(GetOutputStream(), figures);
}

const TableReporter::Result* TableReporter::Line::Find(const std::string& variant) const
{
    const auto found = variants.find(variant);
    return found == variants.end() ? nullptr : &found->second;
}

std::string TableReporter::Line::Ratio(const std::string& dividend, const std::string& divisor) const
{
    const Result* top = Find(dividend);
    const Result* bottom = Find(divisor);
    return top && bottom ? FigureText(Median(top->nanoseconds) / Median(bottom->nanoseconds)) : UNKNOWN;
}

std::vector<std::string> TableReporter::CellsOf(const Line& line) const
{
    Row times;
    Row allocations;
    for (const char* variant : {LIBRARY, HAND_WRITTEN, NLOHMANN, RAPIDJSON})
    {
        const Result* result = line.Find(variant);
        times.push_back(result ? TimeText(Median(result->nanoseconds)) : UNKNOWN);
        if (variant != RAPIDJSON) // it has an allocator of its own, which is not counted
        {
            allocations.push_back(result ? Formatted("%.0f", result->allocations) : UNKNOWN);
        }
    }
    Row cells = std::move(times);
    cells.push_back(line.Ratio(LIBRARY, HAND_WRITTEN));
    cells.push_back(line.Ratio(NLOHMANN, LIBRARY));
    cells.push_back(line.Ratio(RAPIDJSON, LIBRARY));
    cells.insert(cells.end(), allocations.begin(), allocations.end());
    return cells;
}

void TableReporter::PrintRounds() const
{
    std::vector<double> spreads;
    std::size_t rounds = 0;
    for (const auto& [title, line] : m_lines)
    {
        for (const auto& [variant, result] : line.variants)
        {
            spreads.push_back(Spread(result.nanoseconds));
            rounds = std::max(rounds, result.nanoseconds.size());
        }
    }
    if (!spreads.empty())
    {
        GetOutputStream() << rounds << " rounds; the middle half of them spans " << Formatted("%.0f", Median(spreads) * 100)
                          << " % of the median time as a rule and " << Formatted("%.0f", std::ranges::max(spreads) * 100)
                          << " % at most.\n\n";
    }
}

} // namespace Ombrel::Benchmarks
