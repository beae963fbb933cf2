#include "Comparison.h"
#include "Memory.h"
#include "Proc/EffectSettings/IEffectSettings.h"
#include "TableReporter.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace Ombrel;

// The ratio of two times says something only if both come from the same stretch of time, hence the rounds in mixed order.
constexpr const char* DEFAULT_OPTIONS[] = {
    "--benchmark_enable_random_interleaving=true",
    "--benchmark_repetitions=15",
    "--benchmark_min_time=0.03",
};

// A library that brought its own `operator new` would seem to need no memory.
void RequireCountedLibrary()
{
    const std::size_t before = Benchmarks::AllocationCount();
    const auto effect = PhotoCore::IEffectSettings::CreateEffectSettings("EFFECT_ADJUSTER");
    if (Benchmarks::AllocationCount() == before)
    {
        std::cerr << "the allocations of the library are not counted\n";
        std::exit(EXIT_FAILURE);
    }
}

// An option of this program itself: its value, or null if the argument is another.
const char* ValueOf(const char* argument, std::string_view option)
{
    return std::string_view(argument).starts_with(option) ? argument + option.size() : nullptr;
}

} // namespace

// Beside the options of Google Benchmark:
//
//   --times              prints no tables, but the time of each run in a line
//   --count=BENCHMARK    measures nothing, but runs this one ten times where callgrind can count its instructions
int main(int argc, char** argv)
{
    // What the caller says comes last and wins.
    std::vector<std::string> options{argv[0]};
    options.insert(options.end(), DEFAULT_OPTIONS, std::end(DEFAULT_OPTIONS));
    bool printsTimes = false;
    std::string counted;
    for (int i = 1; i < argc; ++i)
    {
        if (const char* name = ValueOf(argv[i], "--count="))
        {
            counted = name;
            options.push_back("--benchmark_filter=^" + counted + '$');
        }
        else if (std::string_view(argv[i]) == "--times")
        {
            printsTimes = true;
        }
        else
        {
            options.emplace_back(argv[i]);
        }
    }
    std::vector<char*> arguments;
    for (std::string& option : options)
    {
        arguments.push_back(option.data());
    }
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);

    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
    {
        return EXIT_FAILURE;
    }

    RequireCountedLibrary();
    Benchmarks::AddEffectComparisons();
    Benchmarks::AddListComparisons();
    Benchmarks::AddTextComparisons();
    if (!counted.empty())
    {
        return Benchmarks::RunMeasured(counted, 10) ? EXIT_SUCCESS : EXIT_FAILURE;
    }

    Benchmarks::TableReporter tables(printsTimes ? Benchmarks::Figures() : Benchmarks::MeasureMemory());
    Benchmarks::TimesReporter times;
    benchmark::BenchmarkReporter& reporter = printsTimes ? static_cast<benchmark::BenchmarkReporter&>(times) : tables;
    const std::size_t runCount = benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return runCount == 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}
