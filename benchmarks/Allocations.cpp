#include "Allocations.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace
{

// Of the thread: atomic ones would cost as much as what is measured.
constinit thread_local std::size_t g_allocationCount = 0;
constinit thread_local bool g_isCountingBytes = false;
constinit thread_local std::size_t g_bytes = 0;

void Free(void* memory) noexcept
{
    if (g_isCountingBytes)
    {
        g_bytes -= malloc_usable_size(memory);
    }
    std::free(memory);
}

} // namespace

// The array and nothrow forms call these. Over-aligned memory is not counted; nothing that is measured asks for it.

void* operator new(std::size_t size)
{
    ++g_allocationCount;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
    {
        if (g_isCountingBytes)
        {
            g_bytes += malloc_usable_size(memory);
        }
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    Free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    Free(memory);
}

namespace Ombrel::Benchmarks
{

std::size_t AllocationCount() noexcept
{
    return g_allocationCount;
}

std::size_t BytesTakenBy(const std::function<void()>& work)
{
    g_bytes = 0;
    g_isCountingBytes = true;
    work();
    g_isCountingBytes = false;
    return g_bytes;
}

} // namespace Ombrel::Benchmarks
