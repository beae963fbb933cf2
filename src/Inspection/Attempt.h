#ifndef OMBREL_INSPECTION_ATTEMPT_H
#define OMBREL_INSPECTION_ATTEMPT_H

#include <new>
#include <type_traits>

namespace Ombrel::Inspection
{

/// Runs what calls a caller's code. Whether it did not fail, and returned true if it returns anything.
/// @throws std::bad_alloc
template <class Action> bool Attempt(Action action)
{
    try
    {
        if constexpr (std::is_void_v<decltype(action())>)
        {
            action();
            return true;
        }
        else
        {
            return action();
        }
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
