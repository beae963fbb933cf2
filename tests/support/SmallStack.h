#ifndef OMBREL_TESTS_SUPPORT_SMALL_STACK_H
#define OMBREL_TESTS_SUPPORT_SMALL_STACK_H

#include <cstddef>
#include <functional>

namespace Support
{

/// Runs `work` on a thread with a stack of `bytes`, so that a recursion as deep as its data ends the program.
void RunOnStack(std::size_t bytes, const std::function<void()>& work);

} // namespace Support

#endif
