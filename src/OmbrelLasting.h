#ifndef OMBREL_LASTING_H
#define OMBREL_LASTING_H

#include "OmbrelCompiler.h"
#include "OmbrelExport.h"

#include <atomic>
#include <cstdlib>

// Constants that are made on first use and that no exit destroys. While a process exits, destructors, exit handlers and other
// threads may still ask for them; so only unloading the library frees them.
namespace Ombrel
{

// Hidden: every library and program that makes such constants keeps a list of its own, which goes when it goes.
namespace OMBREL_LOCAL_NAMESPACE LastingDetail
{

struct Constant
{
    const void* (*make)();
    void (*destroy)(const void* value) noexcept;
    std::atomic<const void*> value = nullptr;
    Constant* next = nullptr;
};

inline constinit std::atomic<Constant*> g_made = nullptr;
inline constinit bool g_isUnloading = false;
inline constinit bool g_isUnloaded = false;

OMBREL_COLD inline void DestroyMade() noexcept
{
    for (Constant* constant = g_made.exchange(nullptr); constant; constant = constant->next)
    {
        constant->destroy(constant->value.exchange(nullptr));
    }
}

#if defined(__GNUC__) || defined(__clang__)
// The system runs exit handlers before such functions when the process exits, and after them when the library is unloaded.
[[gnu::destructor]] inline void NoteUnloading() noexcept
{
    g_isUnloading = true;
}

// The exit handler.
inline void NoteUnloaded() noexcept
{
    g_isUnloaded = g_isUnloading;
}

// With this priority it runs behind the exit handlers, which destroy the variables of the same library: a tree may be one.
[[gnu::destructor(101)]] OMBREL_COLD inline void DestroyIfUnloaded() noexcept
{
    if (g_isUnloaded)
    {
        DestroyMade();
    }
}
#else
// Elsewhere nothing is told apart from the end of the process, so that what a library made is never freed.
inline void NoteUnloaded() noexcept {}
#endif

// Two threads that come here at once both make the value; the first to store it wins.
OMBREL_NOINLINE OMBREL_COLD inline const void* Make(Constant& constant)
{
    const void* made = constant.make();
    const void* stored = nullptr;
    if (!constant.value.compare_exchange_strong(stored, made, std::memory_order_acq_rel, std::memory_order_acquire))
    {
        constant.destroy(made);
        return stored;
    }
    constant.next = g_made.load(std::memory_order_relaxed);
    while (!g_made.compare_exchange_weak(constant.next, &constant, std::memory_order_acq_rel, std::memory_order_relaxed))
    {
    }
    if (!constant.next)
    {
        std::atexit(&NoteUnloaded);
    }
    return made;
}

template <auto MakeValue> OMBREL_COLD const void* New()
{
    return new decltype(MakeValue())(MakeValue());
}

template <class Value> OMBREL_COLD void Delete(const void* value) noexcept
{
    delete static_cast<const Value*>(value);
}

template <const void* (*NewValue)(), void (*DeleteValue)(const void*) noexcept>
inline constinit Constant g_constant{NewValue, DeleteValue};

} // namespace LastingDetail

/// What `NewValue` allocates on the first call, and `DeleteValue` frees. The reference is good before the initialisers of a
/// program and after its destructors, until the library or program that this is compiled into is unloaded. Any number of
/// threads may call it at once.
/// @throws what `NewValue` throws; the next call then tries again
template <class Value, const void* (*NewValue)(), void (*DeleteValue)(const void*) noexcept> const Value& LastingOf()
{
    LastingDetail::Constant& constant = LastingDetail::g_constant<NewValue, DeleteValue>;
    const void* value = constant.value.load(std::memory_order_acquire);
    return *static_cast<const Value*>(value ? value : LastingDetail::Make(constant));
}

/// The same of what `MakeValue` returns.
/// @throws what `MakeValue` throws, and std::bad_alloc; the next call then tries again
template <auto MakeValue> const auto& Lasting()
{
    using Value = decltype(MakeValue());
    return LastingOf<Value, &LastingDetail::New<MakeValue>, &LastingDetail::Delete<Value>>();
}

/// The same if it has been made, else null.
template <auto MakeValue> const auto* LastingIfMade() noexcept
{
    using Value = decltype(MakeValue());
    constexpr auto& constant = LastingDetail::g_constant<&LastingDetail::New<MakeValue>, &LastingDetail::Delete<Value>>;
    return static_cast<const Value*>(constant.value.load(std::memory_order_acquire));
}

} // namespace Ombrel

#endif
