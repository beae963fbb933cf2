#ifndef OMBREL_EXCEPTION_EXCEPTION_H
#define OMBREL_EXCEPTION_EXCEPTION_H

#include "OmbrelExport.h"

// Boost's types must be visible. Otherwise what is attached to an exception is lost when another library catches it.
#if defined(__GNUC__) || defined(__clang__)
#pragma GCC visibility push(default)
#endif
#include <boost/assert/source_location.hpp>
#include <boost/exception/exception.hpp>
#include <boost/exception/get_error_info.hpp>
#include <boost/exception/info.hpp>
#if defined(__GNUC__) || defined(__clang__)
#pragma GCC visibility pop
#endif

#include <exception>
#include <string>

namespace Ombrel
{

/// The failure type of this library. Its `what()` says nothing: `DescribeFailure` gives the text. All data is attached as error
/// information and read with `boost::get_error_info`: the text under `TagDescription`, the call stack under `TagCallStack`, and
/// file, function and line of the throw under Boost's own `boost::throw_file`, `boost::throw_function` and `boost::throw_line`.
class OMBREL_API Exception : public virtual std::exception, public virtual boost::exception
{
public:
    Exception();
    Exception(const Exception& other);
    ~Exception() noexcept override;
};

struct OMBREL_SHARED_TYPE TagDescription;
struct OMBREL_SHARED_TYPE TagCallStack;

/// The text and the call stack as they are attached, for `boost::get_error_info`.
using ErrorDescription = boost::error_info<TagDescription, std::string>;
using ErrorCallStack = boost::error_info<TagCallStack, std::string>;

/// Where a failure is raised. The names are fixed: they do not change with a rebuild, and contain no path of the machine that
/// built the library.
using ThrowLocation = boost::source_location;

/// The text of any failure, for a message or a log: what is attached under `TagDescription`, also to a class of the caller's
/// own, and `failure.what()` where there is none.
OMBREL_API std::string DescribeFailure(const std::exception& failure);

/// The text that a failure has under `TagCallStack`: always empty, since the library records no call stack.
OMBREL_API std::string GetCallStack();

/// Throws a `boost::wrapexcept<Exception>` with `description`, the call stack and `location` attached.
[[noreturn]] OMBREL_API void ThrowException(const std::string& description, const ThrowLocation& location);

} // namespace Ombrel

#endif
