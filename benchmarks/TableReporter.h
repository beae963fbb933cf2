#ifndef OMBREL_BENCHMARKS_TABLE_REPORTER_H
#define OMBREL_BENCHMARKS_TABLE_REPORTER_H

#include "Goals.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Ombrel::Benchmarks
{

/// Collects all runs and prints tables at the end, a line for each comparison: medians of CPU time, their ratios, the
/// allocations of one operation; then memory, and how the goals are met.
class TableReporter : public benchmark::BenchmarkReporter
{
public:
    /// @param bytes under "title/variant"
    explicit TableReporter(Figures bytes) : m_bytes(std::move(bytes)) {}

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Result
    {
        std::vector<double> nanoseconds; // of one operation, in each round
        double allocations = 0;
    };

    struct Line
    {
        std::int64_t place = 0; // in the order of registration; the runs come in any order
        std::map<std::string, Result> variants;
    };

    void PrintRounds() const;

    std::map<std::string, Line> m_lines; // by title
    Figures m_bytes;
};

/// Prints the time of each run as soon as it is known: "title/variant", a tab, nanoseconds.
class TimesReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
};

} // namespace Ombrel::Benchmarks

#endif
