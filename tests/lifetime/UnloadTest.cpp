#include "../hostile/borders/Module.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

// What the library makes on first use and keeps while a process ends goes when it is unloaded.
namespace
{

using Borders::Module;

std::atomic<long> g_blocks = 0; // allocated and not given back

void* Allocate(std::size_t size)
{
    void* const block = std::malloc(size);
    if (!block)
    {
        throw std::bad_alloc();
    }
    ++g_blocks;
    return block;
}

void GiveBack(void* block) noexcept
{
    g_blocks -= block ? 1 : 0;
    std::free(block);
}

void LoadUseAndUnload(const char* path)
{
    {
        const Module module(path);
        module.Get<void()>("UseAll")();
    }
    ASSERT_FALSE(Module::IsLoaded(path));
}

TEST(Unload, GivesBackWhatWasMadeOnFirstUse)
{
    for (const char* path : {LIFETIME_MODULES})
    {
        const long before = g_blocks;
        LoadUseAndUnload(path);
        EXPECT_EQ(g_blocks - before, 0) << path;
        {
            const Module module(path);
            module.Get<void()>("UseAll")();
            EXPECT_GT(g_blocks - before, 50) << path; // the count sees the memory of the default records, more than these
        }
        EXPECT_EQ(g_blocks - before, 0) << path;
    }
}

} // namespace

// The library's allocations come here, since a program's own operators take the place of the standard library's.
void* operator new(std::size_t size)
{
    return Allocate(size);
}

void operator delete(void* block) noexcept
{
    GiveBack(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    GiveBack(block);
}
