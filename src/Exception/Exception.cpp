#include "Exception/Exception.h"

#pragma GCC visibility push(default)
#include <boost/throw_exception.hpp>
#pragma GCC visibility pop

namespace Ombrel
{

Exception::Exception() = default;
Exception::Exception(const Exception& other) = default;
Exception::~Exception() noexcept = default;

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
