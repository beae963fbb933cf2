#ifndef OMBREL_BENCHMARKS_TABLE_REPORTER_H
#define OMBREL_BENCHMARKS_TABLE_REPORTER_H

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Ombrel::Benchmarks
{

/// Collects all runs and prints one table at the end, a line for each comparison: medians of CPU time, their ratios and the
/// allocations of one operation.
class TableReporter : public benchmark::BenchmarkReporter
{
public:
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
        const Result* Find(const std::string& variant) const;
        std::string Ratio(const std::string& dividend, const std::string& divisor) const;

        std::int64_t place = 0; // in the order of registration; the runs come in any order
        std::map<std::string, Result> variants;
    };

    std::vector<std::string> CellsOf(const Line& line) const;
    void PrintRounds() const;

    std::map<std::string, Line> m_lines; // by title
};

} // namespace Ombrel::Benchmarks

#endif
