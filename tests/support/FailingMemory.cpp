#include "support/FailingMemory.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

#ifdef _WIN32
#include <malloc.h>
#endif

namespace
{

constexpr std::size_t UNLIMITED = std::numeric_limits<std::size_t>::max();
constexpr std::size_t FILLED = 1 << 20; // of larger memory, so much; a test may ask for more than it touches

#ifdef _WIN32

// What this allocates the DLL of the standard library may release, and the other way round. The system remembers the sizes.
void* NewBlock(std::size_t size)
{
    return std::malloc(size);
}

std::size_t SizeOf(void* memory)
{
    return ::_msize(memory);
}

void FreeBlock(void* memory)
{
    std::free(memory);
}

#else

// The size of each block stands before it: what malloc gives beyond it depends on what was freed before.
constexpr std::size_t HEADER = alignof(std::max_align_t);

void* NewBlock(std::size_t size)
{
    void* block = std::malloc(HEADER + size);
    if (!block)
    {
        return nullptr;
    }
    std::memcpy(block, &size, sizeof(size));
    return static_cast<char*>(block) + HEADER;
}

std::size_t SizeOf(void* memory)
{
    std::size_t size = 0;
    std::memcpy(&size, static_cast<char*>(memory) - HEADER, sizeof(size));
    return size;
}

void FreeBlock(void* memory)
{
    std::free(static_cast<char*>(memory) - HEADER);
}

#endif

thread_local std::size_t t_successesLeft = UNLIMITED;
thread_local bool t_onlyOnce = false;
thread_local bool t_hasFailed = false;
thread_local std::size_t t_count = 0;
thread_local std::size_t t_held = 0;
thread_local std::size_t t_peak = 0;

void* Allocate(std::size_t size)
{
    ++t_count;
    if (t_successesLeft == 0)
    {
        t_hasFailed = true;
        if (t_onlyOnce)
        {
            t_successesLeft = UNLIMITED;
        }
        throw std::bad_alloc();
    }
    if (t_successesLeft != UNLIMITED)
    {
        --t_successesLeft;
    }
    if (void* memory = NewBlock(size))
    {
        t_held += size;
        t_peak = std::max(t_peak, t_held);
        std::memset(memory, 0xA5, std::min(size, FILLED)); // fresh pages are zero, which hides that nothing was written there
        return memory;
    }
    throw std::bad_alloc();
}

void Release(void* memory)
{
    if (memory)
    {
        t_held -= SizeOf(memory);
        FreeBlock(memory);
    }
}

} // namespace

void* operator new(std::size_t size)
{
    return Allocate(size);
}

void* operator new[](std::size_t size)
{
    return Allocate(size);
}

void operator delete(void* memory) noexcept
{
    Release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    Release(memory);
}

void operator delete[](void* memory) noexcept
{
    Release(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    Release(memory);
}

namespace Support
{

FailingMemory::FailingMemory(std::size_t successes, Mode mode)
{
    t_successesLeft = successes;
    t_onlyOnce = mode == Mode::Once;
    t_hasFailed = false;
}

FailingMemory::~FailingMemory()
{
    t_successesLeft = UNLIMITED;
}

bool FailingMemory::HasFailed() const
{
    return t_hasFailed;
}

std::size_t AllocationCount()
{
    return t_count;
}

std::size_t HeldMemory()
{
    return t_held;
}

void NotePeakMemory()
{
    t_peak = t_held;
}

std::size_t PeakMemory()
{
    return t_peak;
}

} // namespace Support
