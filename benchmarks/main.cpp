#include "Comparison.h"
#include "HandWritten.h"
#include "Samples.h"
#include "TableReporter.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>
#include <string>
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

} // namespace

int main(int argc, char** argv)
{
    // What the caller says comes last and wins.
    std::vector<std::string> options{argv[0]};
    options.insert(options.end(), DEFAULT_OPTIONS, std::end(DEFAULT_OPTIONS));
    options.insert(options.end(), argv + 1, argv + argc);
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

    Benchmarks::TableReporter reporter;
    const std::size_t runCount = benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return runCount == 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}
