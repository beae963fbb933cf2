#include "Fuzz.h"

#include "support/TreeText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <sstream>

namespace Fuzz
{
namespace
{

using Ombrel::PropertyTree;
using Ombrel::PropertyTreeScalar;

bool IsNaN(const PropertyTreeScalar& scalar)
{
    return scalar.kind() == PropertyTreeScalar::Kind::Float && std::isnan(scalar.toDouble());
}

bool AreSame(const PropertyTree& a, const PropertyTree& b)
{
    if (a.isNull() || b.isNull())
    {
        return a.isNull() && b.isNull();
    }
    if (a.isScalar() || b.isScalar())
    {
        return a.isScalar() && b.isScalar() && (a == b || (IsNaN(a.getScalar()) && IsNaN(b.getScalar())));
    }
    if (a.isList() || b.isList())
    {
        return a.isList() && b.isList() && std::ranges::equal(a.getList(), b.getList(), &AreSame);
    }
    return std::ranges::equal(a.getMap(), b.getMap(),
                              [](const auto& left, const auto& right)
                              { return left.first == right.first && AreSame(left.second, right.second); });
}

bool AreSameScalars(const PropertyTreeScalar& a, const PropertyTreeScalar& b)
{
    const auto isNumber = [](const PropertyTreeScalar& scalar)
    { return scalar.kind() == PropertyTreeScalar::Kind::Integer || scalar.kind() == PropertyTreeScalar::Kind::Float; };
    if (a.kind() == b.kind() || !isNumber(a) || !isNumber(b))
    {
        return a == b || (a.kind() == PropertyTreeScalar::Kind::Float && b.kind() == PropertyTreeScalar::Kind::Float &&
                          std::isnan(a.toDouble()) && std::isnan(b.toDouble()));
    }
    // A float of 64 bits holds no more digits than this, so both conversions are exact or differ.
    const double number = a.kind() == PropertyTreeScalar::Kind::Float ? a.toDouble() : b.toDouble();
    const std::int64_t integer = a.kind() == PropertyTreeScalar::Kind::Float ? b.toInt() : a.toInt();
    return number >= -9223372036854775808.0 && number < 9223372036854775808.0 && static_cast<std::int64_t>(number) == integer &&
           static_cast<double>(static_cast<std::int64_t>(number)) == number;
}

std::string TextOf(const PropertyTree& tree)
{
    std::ostringstream out;
    out.precision(17);
    out << tree;
    return out.str();
}

} // namespace

void Require(bool condition, std::string_view what, std::string_view found)
{
    if (!condition)
    {
        std::cerr << "FAILED: " << what << "\n" << found << "\n";
        std::abort();
    }
}

void RequireSame(const PropertyTree& expected, const PropertyTree& found, std::string_view what)
{
    if (!AreSame(expected, found))
    {
        Require(false, what, "expected " + TextOf(expected) + "\nfound    " + TextOf(found));
    }
}

bool AreSameByValue(const PropertyTree& a, const PropertyTree& b)
{
    if (a.isScalar() && b.isScalar())
    {
        return AreSameScalars(a.getScalar(), b.getScalar());
    }
    if (a.isList() && b.isList())
    {
        return std::ranges::equal(a.getList(), b.getList(), &AreSameByValue);
    }
    if (a.isMap() && b.isMap())
    {
        return std::ranges::equal(a.getMap(), b.getMap(),
                                  [](const auto& one, const auto& other)
                                  { return one.first == other.first && AreSameByValue(one.second, other.second); });
    }
    return a.isNull() && b.isNull();
}

} // namespace Fuzz
