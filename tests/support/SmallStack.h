#ifndef OMBREL_TESTS_SUPPORT_SMALL_STACK_H
#define OMBREL_TESTS_SUPPORT_SMALL_STACK_H

#include <cstddef>
#include <functional>

namespace Support
{

// What a compiler says of itself in its own way.
#if defined(__has_feature)
#define OMBREL_HAS_FEATURE(name) __has_feature(name)
#else
#define OMBREL_HAS_FEATURE(name) 0
#endif

/// Whether a sanitizer watches, whose checks take stack and time of their own.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || OMBREL_HAS_FEATURE(address_sanitizer) ||                  \
    OMBREL_HAS_FEATURE(thread_sanitizer)
inline constexpr bool HAS_SANITIZER = true;
#else
inline constexpr bool HAS_SANITIZER = false;
#endif

/// Runs `work` on a thread with a stack of `bytes`, so that a recursion as deep as its data ends the program.
/// What `work` throws comes out here.
void RunOnStack(std::size_t bytes, const std::function<void()>& work);

} // namespace Support

#endif
