#ifndef OMBREL_BENCHMARKS_COMPARISON_H
#define OMBREL_BENCHMARKS_COMPARISON_H

#include "Allocations.h"
#include "Canonical.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <optional>
#include <string>

namespace Ombrel::Benchmarks
{

// The variants of a comparison and the counter that each reports; a benchmark's name is "title/variant".
inline constexpr const char* LIBRARY = "library";
inline constexpr const char* HAND_WRITTEN = "hand-written";
inline constexpr const char* NLOHMANN = "nlohmann";
inline constexpr const char* RAPIDJSON = "rapidjson";
inline constexpr const char* BOOST_HEAP = "boost-heap";
inline constexpr const char* BOOST_MONOTONIC = "boost-monotonic";
inline constexpr const char* SIMDJSON = "simdjson";
inline constexpr const char* ON_DEMAND = "on-demand"; // of simdjson
inline constexpr const char* VARIANTS[] = {LIBRARY,    HAND_WRITTEN,    NLOHMANN, RAPIDJSON,
                                           BOOST_HEAP, BOOST_MONOTONIC, SIMDJSON, ON_DEMAND};
inline constexpr const char* ALLOCATIONS = "allocations";

/// Whether the filter of the benchmark program lets a benchmark of this name run.
bool IsWanted(const std::string& name);

/// Does a benchmark's operation `count` times in a function of its own name, `Measured`, so that callgrind can count it alone.
/// False if there is no such benchmark, or it was not wanted.
bool RunMeasured(const std::string& benchmark, int count);

/// Makes a benchmark known to `RunMeasured`.
void AddMeasured(const std::string& benchmark, std::function<void(int count)> run);

/// Calls a function so that the compiler cannot merge it with others. Under callgrind its instructions are counted.
void Measure(const std::function<void()>& work);

/// One line of the table: the same done by several variants, all of which must give the same result.
///
/// A variant is added with a function that makes its operation. An operation is called without an argument and returns its
/// result, which it makes anew or refers to; destroying the result is part of its time. Nothing is made for variants that are
/// not wanted. Each operation is run once here, and results that differ end the program.
class Row
{
public:
    explicit Row(std::string title) : m_title(std::move(title)) {}

    template <class MakeOperation> Row& Add(const char* variant, MakeOperation makeOperation)
    {
        const std::string name = m_title + '/' + variant;
        if (IsWanted(name))
        {
            auto operation = makeOperation();
            Check(name, Canonical(operation()));
            AddOperation(name, std::move(operation));
        }
        return *this;
    }

    /// The same for destroying. `makeFill` gives a function that fills a document, which takes no part in the time.
    template <class Document, class MakeFill> Row& AddDestruction(const char* variant, MakeFill makeFill)
    {
        const std::string name = m_title + '/' + variant;
        if (IsWanted(name))
        {
            AddDestructionOf<Document>(name, makeFill());
        }
        return *this;
    }

private:
    void Check(const std::string& name, nlohmann::json result);

    template <class Operation> static void AddOperation(const std::string& name, Operation operation)
    {
        AddMeasured(name,
                    [operation](int count) mutable
                    {
                        benchmark::DoNotOptimize(operation()); // what is made once only is not counted
                        Measure(
                            [&]
                            {
                                for (int i = 0; i < count; ++i)
                                {
                                    benchmark::DoNotOptimize(operation());
                                }
                            });
                    });
        benchmark::RegisterBenchmark(name.c_str(),
                                     [operation](benchmark::State& state) mutable
                                     {
                                         benchmark::DoNotOptimize(operation());
                                         const std::size_t before = AllocationCount();
                                         benchmark::DoNotOptimize(operation());
                                         const std::size_t allocations = AllocationCount() - before;
                                         for ([[maybe_unused]] auto iteration : state)
                                         {
                                             benchmark::DoNotOptimize(operation());
                                         }
                                         state.counters[ALLOCATIONS] = static_cast<double>(allocations);
                                     });
    }

    template <class Document, class Fill> static void AddDestructionOf(const std::string& name, Fill fill)
    {
        AddMeasured(name,
                    [fill](int count)
                    {
                        for (int i = 0; i < count; ++i)
                        {
                            std::optional<Document> document;
                            fill(document.emplace());
                            Measure([&] { document.reset(); });
                        }
                    });
        constexpr int iterations = 100; // by time there would be too many, since most of it is not measured
        benchmark::RegisterBenchmark(name.c_str(),
                                     [fill](benchmark::State& state)
                                     {
                                         std::optional<Document> document;
                                         for ([[maybe_unused]] auto iteration : state)
                                         {
                                             state.PauseTiming();
                                             fill(document.emplace());
                                             state.ResumeTiming();
                                             document.reset();
                                             benchmark::ClobberMemory();
                                         }
                                         state.counters[ALLOCATIONS] = 0;
                                     })
            ->Iterations(iterations);
    }

    std::string m_title;
    std::string m_first;                      // variant
    std::optional<nlohmann::json> m_expected; // its result
};

void AddEffectComparisons();
void AddListComparisons();
void AddTextComparisons();

} // namespace Ombrel::Benchmarks

#endif
