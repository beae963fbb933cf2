#ifndef OMBREL_EXCEPTION_EXCEPTION_H
#define OMBREL_EXCEPTION_EXCEPTION_H

#include "OmbrelExport.h"

// Boost's types must be visible, or what is attached to an exception is lost when it crosses into another library.
#pragma GCC visibility push(default)
#include <boost/assert/source_location.hpp>
#include <boost/exception/exception.hpp>
#include <boost/exception/get_error_info.hpp>
#include <boost/exception/info.hpp>
#pragma GCC visibility pop

#include <exception>
#include <string>

namespace Ombrel
{

/// The failure type of this library. All that it says is attached to it and read with `boost::get_error_info`: the text under
/// `TagDescription`, the call stack under `TagCallStack`, and file, function and line of the throw as Boost's own
/// `boost::throw_file`, `boost::throw_function` and `boost::throw_line`.
class OMBREL_API Exception : public virtual std::exception, public virtual boost::exception
{
public:
    Exception();
    Exception(const Exception& other);
    ~Exception() noexcept override;
};

struct OMBREL_API TagDescription;
struct OMBREL_API TagCallStack;

using ErrorDescription = boost::error_info<TagDescription, std::string>;
using ErrorCallStack = boost::error_info<TagCallStack, std::string>;

/// Where a failure is raised: a fixed name of a place, stable over rebuilds, and no path of the machine that built it.
using ThrowLocation = boost::source_location;

/// The text that a failure carries under `TagCallStack`: empty, since the library walks no stacks.
OMBREL_API std::string GetCallStack();

/// Throws an `Exception` with `description` and the call stack, as a `boost::wrapexcept<Exception>` that knows `location`.
[[noreturn]] OMBREL_API void ThrowException(const std::string& description, const ThrowLocation& location);

} // namespace Ombrel

#endif
