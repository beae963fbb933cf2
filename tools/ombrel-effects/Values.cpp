#include "Values.h"

#include "PropertyTree/Characters.h"
#include "PropertyTree/KindNames.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Ombrel::EffectsTool
{
namespace
{

using Kind = PropertyTreeScalar::Kind;

bool IsNumber(const PropertyTreeScalar& scalar)
{
    return scalar.kind() == Kind::Integer || scalar.kind() == Kind::Float;
}

bool IsSameNumber(std::int64_t integer, double real)
{
    constexpr double limit = 9223372036854775808.0; // the first float above 64 bits, where the conversion is undefined
    return real >= -limit && real < limit && std::trunc(real) == real && static_cast<std::int64_t>(real) == integer;
}

bool IsSameScalar(const PropertyTreeScalar& a, const PropertyTreeScalar& b)
{
    if (a.kind() != b.kind() && IsNumber(a) && IsNumber(b))
    {
        return a.kind() == Kind::Integer ? IsSameNumber(a.toInt(), b.toDouble()) : IsSameNumber(b.toInt(), a.toDouble());
    }
    if (a.kind() == Kind::Float && b.kind() == Kind::Float && std::isnan(a.toDouble()))
    {
        return std::isnan(b.toDouble());
    }
    return a == b;
}

bool IsMapStoredAs(const PropertyTree& given, const PropertyTree& stored)
{
    return std::ranges::all_of(given.getMap(), [&stored](const auto& entry)
                               { return stored.contains(entry.first) && IsStoredAs(entry.second, stored[entry.first]); });
}

} // namespace

std::string Shown(const PropertyTree& value)
{
    try
    {
        return WriteJson(value); // without the option below, which would put a backslash before a string "NaN"
    }
    catch (const JsonWriteError&)
    {
        return WriteJson(value, {.nonFiniteAsText = true});
    }
}

std::string ShownInBrief(const PropertyTree& value)
{
    return CutText(Shown(value));
}

const char* KindOf(const PropertyTree& value)
{
    return value.isScalar() ? NameOf(value.getScalar().kind()) : NameOfState(value);
}

bool IsString(const PropertyTree& value)
{
    return value.isScalar() && value.getScalar().kind() == Kind::String;
}

bool IsStoredAs(const PropertyTree& given, const PropertyTree& stored)
{
    if (given.isNull() || stored.isNull())
    {
        return given.isNull() && stored.isNull();
    }
    if (given.isScalar() || stored.isScalar())
    {
        return given.isScalar() && stored.isScalar() && IsSameScalar(given.getScalar(), stored.getScalar());
    }
    if (given.isList() || stored.isList())
    {
        return given.isList() && stored.isList() && std::ranges::equal(given.getList(), stored.getList(), &IsStoredAs);
    }
    return IsMapStoredAs(given, stored);
}

} // namespace Ombrel::EffectsTool
