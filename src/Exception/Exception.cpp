#include "Exception/Exception.h"

#if defined(__GNUC__) || defined(__clang__)
#pragma GCC visibility push(default)
#endif
#include <boost/throw_exception.hpp>
#if defined(__GNUC__) || defined(__clang__)
#pragma GCC visibility pop
#endif

namespace Ombrel
{

Exception::Exception() = default;
Exception::Exception(const Exception& other) = default;
Exception::~Exception() noexcept = default;

std::string DescribeFailure(const std::exception& failure)
{
    const std::string* description = boost::get_error_info<ErrorDescription>(failure);
    return description ? *description : failure.what();
}

std::string GetCallStack()
{
    return {};
}

void ThrowException(const std::string& description, const ThrowLocation& location)
{
    Exception exception;
    exception << ErrorDescription(description) << ErrorCallStack(GetCallStack());
    boost::throw_exception(exception, location);
}

} // namespace Ombrel
