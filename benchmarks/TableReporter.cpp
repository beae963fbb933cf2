#include "TableReporter.h"

#include "Comparison.h"
#include "TableText.h"

#include <algorithm>
#include <functional>
#include <iomanip>
#include <ostream>
#include <sstream>
#include <utility>

namespace Ombrel::Benchmarks
{
namespace
{

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

double NanosecondsOf(const benchmark::BenchmarkReporter::Run& run)
{
    return run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9;
}

std::pair<std::string, std::string> TitleAndVariant(const std::string& name)
{
    const std::size_t slash = name.rfind('/');
    return {name.substr(0, slash), name.substr(slash + 1)};
}

/// A line for each title, a column for each variant from `firstVariant` on. Lines without a figure are left out.
void PrintTable(std::ostream& out, const char* heading, std::size_t firstVariant, const std::vector<std::string>& titles,
                const std::function<std::string(const std::string& title, const std::string& variant)>& cellOf)
{
    std::vector<TableRow> rows{{heading}};
    rows.front().insert(rows.front().end(), std::begin(VARIANTS) + firstVariant, std::end(VARIANTS));
    for (const std::string& title : titles)
    {
        TableRow row{title};
        for (std::size_t i = firstVariant; i < std::size(VARIANTS); ++i)
        {
            row.push_back(cellOf(title, VARIANTS[i]));
        }
        if (std::any_of(row.begin() + 1, row.end(), [](const std::string& cell) { return cell != UNKNOWN; }))
        {
            rows.push_back(std::move(row));
        }
    }
    if (rows.size() > 1)
    {
        Print(out, rows);
        out << '\n';
    }
}

/// The figure as text, if there is one.
template <class Text> auto CellsFrom(const Figures& figures, Text text)
{
    return [&figures, text](const std::string& title, const std::string& variant)
    {
        const auto found = figures.find(title + '/' + variant);
        return found == figures.end() ? UNKNOWN : text(found->second);
    };
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
        const auto [title, variant] = TitleAndVariant(run.run_name.function_name);
        const auto [entry, isNew] = m_lines.try_emplace(title);
        Line& line = entry->second;
        line.place = isNew ? run.family_index : std::min(line.place, run.family_index);
        Result& result = line.variants[variant];
        result.nanoseconds.push_back(NanosecondsOf(run));
        result.allocations = run.counters.at(ALLOCATIONS).value;
    }
}

void TableReporter::Finalize()
{
    std::vector<std::pair<std::int64_t, std::string>> places;
    Figures times;
    Figures allocations;
    for (const auto& [title, line] : m_lines)
    {
        places.emplace_back(line.place, title);
        for (const auto& [variant, result] : line.variants)
        {
            times[title + '/' + variant] = Median(result.nanoseconds);
            allocations[title + '/' + variant] = result.allocations;
        }
    }
    std::ranges::sort(places);
    std::vector<std::string> titles;
    for (auto& [place, title] : places)
    {
        titles.push_back(std::move(title));
    }
    std::vector<std::string> titlesOfBytes;
    for (const auto& [name, bytes] : m_bytes)
    {
        titlesOfBytes.push_back(TitleAndVariant(name).first);
    }
    titlesOfBytes.erase(std::unique(titlesOfBytes.begin(), titlesOfBytes.end()), titlesOfBytes.end());

    const auto ratio = [&times](const std::string& title, const std::string& variant) -> std::string
    {
        const auto library = times.find(title + '/' + LIBRARY);
        const auto other = times.find(title + '/' + variant);
        return library == times.end() || other == times.end() ? UNKNOWN : FigureText(library->second / other->second);
    };
    std::ostream& out = GetOutputStream();
    const auto count = [](double value) { return Formatted("%.0f", value); };
    PrintRounds();
    PrintTable(out, "time", 0, titles, CellsFrom(times, TimeText));
    PrintTable(out, "library's time / that of", 1, titles, ratio);
    PrintTable(out, "allocations", 0, titles, CellsFrom(allocations, count));
    PrintTable(out, "memory", 0, titlesOfBytes, CellsFrom(m_bytes, count));
    PrintGoals(out, {times, allocations, m_bytes});
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

bool TimesReporter::ReportContext(const Context&)
{
    return true;
}

void TimesReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        GetOutputStream() << run.run_name.function_name << '\t' << NanosecondsOf(run) << '\n';
    }
}

} // namespace Ombrel::Benchmarks
