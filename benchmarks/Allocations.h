#ifndef OMBREL_BENCHMARKS_ALLOCATIONS_H
#define OMBREL_BENCHMARKS_ALLOCATIONS_H

#include <cstddef>

namespace Ombrel::Benchmarks
{

/// How often the calling thread has called `operator new`. The program replaces it, also for the shared libraries it uses.
std::size_t AllocationCount() noexcept;

} // namespace Ombrel::Benchmarks

#endif
