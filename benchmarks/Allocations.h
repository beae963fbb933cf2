#ifndef OMBREL_BENCHMARKS_ALLOCATIONS_H
#define OMBREL_BENCHMARKS_ALLOCATIONS_H

#include <cstddef>
#include <functional>

namespace Ombrel::Benchmarks
{

/// How often the calling thread has called `operator new`. The program replaces it, also for the shared libraries it uses.
std::size_t AllocationCount() noexcept;

/// How many bytes of what `work` allocates with `operator new` are still in use when it is done. Counted is the usable size of
/// each allocation, which `malloc` may have rounded up, without its own header.
std::size_t BytesTakenBy(const std::function<void()>& work);

} // namespace Ombrel::Benchmarks

#endif
