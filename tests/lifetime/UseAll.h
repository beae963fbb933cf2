#ifndef OMBREL_TESTS_LIFETIME_USE_ALL_H
#define OMBREL_TESTS_LIFETIME_USE_ALL_H

namespace Lifetime
{

/// Makes, writes, reads, clones and compares an effect of every class, and looks at everything that the library says of it.
/// Ends the process at once, with a message that names `when`, if something is not as it is in `main`.
void UseAll(const char* when);

/// Looks at the public constants.
void UseConstants(const char* when);

} // namespace Lifetime

#endif
