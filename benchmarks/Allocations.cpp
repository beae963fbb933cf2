#include "Allocations.h"

#include <cstdlib>
#include <new>

namespace
{

constinit thread_local std::size_t g_allocationCount = 0; // an atomic one would cost as much as what is measured

} // namespace

// The array and nothrow forms call these. Over-aligned memory is not counted; nothing that is measured asks for it.

void* operator new(std::size_t size)
{
    ++g_allocationCount;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
    {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace Ombrel::Benchmarks
{

std::size_t AllocationCount() noexcept
{
    return g_allocationCount;
}

} // namespace Ombrel::Benchmarks
