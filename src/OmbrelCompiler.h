#ifndef OMBREL_COMPILER_H
#define OMBREL_COMPILER_H

#include "OmbrelExport.h"

// What compilers call by names of their own.

#if defined(__GNUC__) || defined(__clang__)
/// Marks a function that runs seldom: it is made small and stands apart.
#define OMBREL_COLD [[gnu::cold]]
/// Marks a function that is not copied to where it is called.
#define OMBREL_NOINLINE [[gnu::noinline]]
#else
#define OMBREL_COLD // a profile says so there
#define OMBREL_NOINLINE __declspec(noinline)
#endif

namespace Ombrel
{

/// The condition of a branch that is taken as a rule.
constexpr bool IsLikely(bool condition) noexcept
{
#if defined(__GNUC__) || defined(__clang__)
    return __builtin_expect(condition, true);
#else
    return condition;
#endif
}

} // namespace Ombrel

#endif
