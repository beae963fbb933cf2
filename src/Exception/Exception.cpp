#include "Exception/Exception.h"

#pragma GCC visibility push(default)
#include <boost/throw_exception.hpp>
#pragma GCC visibility pop

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
