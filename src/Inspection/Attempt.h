#ifndef OMBREL_INSPECTION_ATTEMPT_H
#define OMBREL_INSPECTION_ATTEMPT_H

#include <new>

namespace Ombrel::Inspection
{

/// Runs what calls a caller's code. Whether it did not fail.
/// @throws std::bad_alloc
template <class Action> bool Attempt(Action action)
{
    try
    {
        action();
        return true;
    }
    catch (const std::bad_alloc&)
    {
        throw;
    }
    catch (...)
    {
        return false;
    }
}

} // namespace Ombrel::Inspection

#endif
