#include "PropertyTree/PropertyTreeScalar.h"

#include "PropertyTree/KindNames.h"
#include "PropertyTree/KnownTexts.h"

#include <stdexcept>

namespace Ombrel
{
namespace
{

[[noreturn]] void ThrowKind(const char* expected, PropertyTreeScalar::Kind found)
{
    throw std::invalid_argument(std::string("scalar: expected ") + expected + ", found " + NameOf(found));
}

} // namespace

std::int64_t PropertyTreeScalar::toInt() const
{
    if (kind() == Kind::Integer)
    {
        return Integer();
    }
    if (kind() == Kind::Float)
    {
        // Both bounds are exact as doubles; the upper one is the first value that does not fit. A NaN fails both.
        constexpr double lowest = -9223372036854775808.0;
        const double value = Float();
        if (value >= lowest && value < -lowest)
        {
            return static_cast<std::int64_t>(value);
        }
        throw std::out_of_range("scalar: the float is no number or does not fit a 64-bit integer");
    }
    ThrowKind("a number", kind());
}

double PropertyTreeScalar::toDouble() const
{
    if (kind() == Kind::Float)
    {
        return Float();
    }
    if (kind() == Kind::Integer)
    {
        return static_cast<double>(Integer());
    }
    ThrowKind("a number", kind());
}

const std::string& PropertyTreeScalar::toString() const
{
    if (kind() == Kind::String)
    {
        return *m_text;
    }
    ThrowKind("a string", kind());
}

const char* PropertyTreeScalar::toCString() const
{
    return toString().c_str();
}

void PropertyTreeScalar::convertTo(bool& value) const
{
    if (kind() != Kind::Bool)
    {
        ThrowKind("a bool", kind());
    }
    value = m_bits != 0;
}

void PropertyTreeScalar::convertTo(std::string& value) const
{
    value = toString();
}

bool operator==(const PropertyTreeScalar& a, const PropertyTreeScalar& b) noexcept
{
    if (a.kind() != b.kind())
    {
        return false;
    }
    switch (a.kind())
    {
    case PropertyTreeScalar::Kind::String:
        return a.m_text == b.m_text || *a.m_text == *b.m_text;
    case PropertyTreeScalar::Kind::Float:
        return a.Float() == b.Float();
    default:
        return a.m_bits == b.m_bits;
    }
}

const std::string* PropertyTreeScalar::Own(std::string&& text, std::uint64_t& kind)
{
    const KnownTexts* texts = KnownTexts::Get();
    if (const PropertyTreeKey* known = texts ? texts->Find(text) : nullptr)
    {
        kind |= KNOWN;
        return &known->text;
    }
    return new std::string(std::move(text));
}

const std::string* PropertyTreeScalar::Copy(const std::string& text)
{
    return new std::string(text);
}

void PropertyTreeScalar::Destroy(const std::string* text) noexcept
{
    delete text;
}

} // namespace Ombrel
