#ifndef OMBREL_BENCHMARKS_COMPARISON_H
#define OMBREL_BENCHMARKS_COMPARISON_H

#include "Allocations.h"
#include "Canonical.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <string>

namespace Ombrel::Benchmarks
{

// The variants of a comparison and the counter that each reports; a benchmark's name is "title/variant".
inline constexpr const char* LIBRARY = "library";
inline constexpr const char* HAND_WRITTEN = "hand-written";
inline constexpr const char* NLOHMANN = "nlohmann";
inline constexpr const char* RAPIDJSON = "rapidjson"; // of few
inline constexpr const char* ALLOCATIONS = "allocations";

/// Ends the program with a message unless the two results are the same.
void RequireSame(const std::string& benchmark, const nlohmann::json& result, const nlohmann::json& expected);

template <class Operation> void AddVariant(const std::string& name, Operation operation)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [operation](benchmark::State& state) mutable
                                 {
                                     benchmark::DoNotOptimize(operation()); // what is made once only is not counted
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

/// Adds one line of the table: the same operation done by the library, by hand and with nlohmann's DOM. An operation is called
/// without an argument and returns its result, which it makes anew or refers to; destroying the result is part of its time.
/// All three are run once here, and results that differ end the program.
template <class Library, class HandWritten, class Dom>
void AddComparison(const std::string& title, Library library, HandWritten handWritten, Dom dom)
{
    const std::string prefix = title + "/";
    const nlohmann::json expected = Canonical(handWritten());
    RequireSame(prefix + LIBRARY, Canonical(library()), expected);
    RequireSame(prefix + NLOHMANN, Canonical(dom()), expected);

    AddVariant(prefix + LIBRARY, library);
    AddVariant(prefix + HAND_WRITTEN, handWritten);
    AddVariant(prefix + NLOHMANN, dom);
}

void AddEffectComparisons();
void AddListComparisons();

} // namespace Ombrel::Benchmarks

#endif
