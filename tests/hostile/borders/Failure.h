#ifndef OMBREL_TESTS_HOSTILE_BORDERS_FAILURE_H
#define OMBREL_TESTS_HOSTILE_BORDERS_FAILURE_H

#include "Exception/Exception.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <typeinfo>

namespace Borders
{

/// What was caught, and all that it said.
struct Failure
{
    std::string type;
    std::string text;
    std::string callStack = "none";
    std::string file = {};
    std::string function = {};
    int line = 0;

    bool operator==(const Failure&) const = default;
};

template <class Info> auto InfoOf(const Ombrel::Exception& failure, typename Info::value_type missing)
{
    const auto* info = boost::get_error_info<Info>(failure);
    return info ? *info : missing;
}

/// Catches what `action` throws in the module that this is compiled into: it is hidden, so that each has its own.
inline Failure FailureOf(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const Ombrel::Exception& failure)
    {
        const bool isWrapped = dynamic_cast<const boost::wrapexcept<Ombrel::Exception>*>(&failure) != nullptr;
        return {isWrapped ? "wrapexcept<Exception>" : "Exception", InfoOf<Ombrel::ErrorDescription>(failure, "none"),
                InfoOf<Ombrel::ErrorCallStack>(failure, "none"),   InfoOf<boost::throw_file>(failure, "none"),
                InfoOf<boost::throw_function>(failure, "none"),    InfoOf<boost::throw_line>(failure, 0)};
    }
    catch (const std::bad_cast&)
    {
        return {"bad_cast", ""};
    }
    catch (const std::out_of_range& failure)
    {
        return {"out_of_range", failure.what()};
    }
    catch (const std::exception& failure)
    {
        return {"another exception", failure.what()};
    }
    return {"nothing", ""};
}

} // namespace Borders

#endif
