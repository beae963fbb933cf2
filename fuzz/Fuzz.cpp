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

} // namespace Fuzz
