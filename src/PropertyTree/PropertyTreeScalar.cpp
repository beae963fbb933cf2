#include "PropertyTree/PropertyTreeScalar.h"

#include <stdexcept>

namespace Ombrel
{
namespace
{

const char* NameOf(PropertyTreeScalar::Kind kind)
{
    switch (kind)
    {
    case PropertyTreeScalar::Kind::Bool:
        return "a bool";
    case PropertyTreeScalar::Kind::Integer:
        return "an integer";
    case PropertyTreeScalar::Kind::Float:
        return "a float";
    case PropertyTreeScalar::Kind::String:
        return "a string";
    }
    return "nothing";
}

[[noreturn]] void ThrowKind(const char* expected, PropertyTreeScalar::Kind found)
{
    throw std::invalid_argument(std::string("scalar: expected ") + expected + ", found " + NameOf(found));
}

} // namespace

std::int64_t PropertyTreeScalar::toInt() const
{
    if (const auto* integer = std::get_if<std::int64_t>(&m_value))
    {
        return *integer;
    }
    if (const auto* real = std::get_if<double>(&m_value))
    {
        // Both bounds are exact as doubles; the upper one is the first value that does not fit. A NaN fails both.
        constexpr double lowest = -9223372036854775808.0;
        if (*real >= lowest && *real < -lowest)
        {
            return static_cast<std::int64_t>(*real);
        }
        throw std::out_of_range("scalar: the float is no number or does not fit a 64-bit integer");
    }
    ThrowKind("a number", kind());
}

double PropertyTreeScalar::toDouble() const
{
    if (const auto* real = std::get_if<double>(&m_value))
    {
        return *real;
    }
    if (const auto* integer = std::get_if<std::int64_t>(&m_value))
    {
        return static_cast<double>(*integer);
    }
    ThrowKind("a number", kind());
}

const std::string& PropertyTreeScalar::toString() const
{
    if (const auto* text = std::get_if<std::string>(&m_value))
    {
        return *text;
    }
    ThrowKind("a string", kind());
}

const char* PropertyTreeScalar::toCString() const
{
    return toString().c_str();
}

void PropertyTreeScalar::convertTo(bool& value) const
{
    const auto* flag = std::get_if<bool>(&m_value);
    if (!flag)
    {
        ThrowKind("a bool", kind());
    }
    value = *flag;
}

void PropertyTreeScalar::convertTo(std::string& value) const
{
    value = toString();
}

} // namespace Ombrel
