#ifndef OMBREL_TESTS_SUPPORT_FAILING_MEMORY_H
#define OMBREL_TESTS_SUPPORT_FAILING_MEMORY_H

#include <cstddef>

namespace Support
{

/// While it lives, allocations of its thread throw `std::bad_alloc`: all but the first `successes`, or only the one after
/// those. A program that uses it replaces the global `operator new`, by one that fills memory so that nothing in it is zero by
/// chance.
class FailingMemory
{
public:
    enum class Mode
    {
        FromThenOn,
        Once,
    };

    explicit FailingMemory(std::size_t successes = 0, Mode mode = Mode::FromThenOn);
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory();

    /// Whether an allocation has been refused.
    bool HasFailed() const;
};

/// How many allocations this thread has made so far.
std::size_t AllocationCount();

/// How many of them are made by `work()`.
template <class Work> std::size_t AllocationsOf(Work work)
{
    const std::size_t before = AllocationCount();
    work();
    return AllocationCount() - before;
}

/// How many bytes the allocations hold that this thread has made and not given back.
std::size_t HeldMemory();

/// Starts to note the most that `HeldMemory` comes to, from what it is now.
void NotePeakMemory();

/// The most since then.
std::size_t PeakMemory();

/// How much more than before is held at most while `work()` runs.
template <class Work> std::size_t PeakMemoryOf(Work work)
{
    const std::size_t before = HeldMemory();
    NotePeakMemory();
    work();
    return PeakMemory() - before;
}

} // namespace Support

#endif
