#include "Inspection/Fingerprints.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

using Kind = PropertyTreeScalar::Kind;

enum Mark : std::uint64_t
{
    MARK_NULL = 1,
    MARK_FALSE,
    MARK_TRUE,
    MARK_NAN,
    MARK_NUMBER,
    MARK_TEXT,
    MARK_LIST,
    MARK_MAP,
};

// Numbers by value. A float that is an integer has the fingerprint of the integer.
std::uint64_t OfNumber(const PropertyTreeScalar& scalar)
{
    const double number = scalar.toDouble();
    return std::isnan(number) ? MARK_NAN : Fingerprints::Joined(MARK_NUMBER, std::hash<double>()(number));
}

std::uint64_t OfScalar(const PropertyTreeScalar& scalar)
{
    bool isTrue = false;
    switch (scalar.kind())
    {
    case Kind::Bool:
        scalar.convertTo(isTrue);
        return isTrue ? MARK_TRUE : MARK_FALSE;
    case Kind::String:
        return Fingerprints::OfText(scalar.toString());
    default:
        return OfNumber(scalar);
    }
}

// The lists and maps in a list or a map.
void AddContainers(const PropertyTree& tree, std::vector<const PropertyTree*>& containers)
{
    const auto add = [&containers](const PropertyTree& part)
    {
        if (part.isList() || part.isMap())
        {
            containers.push_back(&part);
        }
    };
    if (tree.isList())
    {
        std::ranges::for_each(tree.getList(), add);
        return;
    }
    for (const auto& [key, child] : tree.getMap())
    {
        add(child);
    }
}

} // namespace

std::uint64_t Fingerprints::OfText(std::string_view text) noexcept
{
    return Joined(MARK_TEXT, std::hash<std::string_view>()(text));
}

// The finaliser of MurmurHash3, by Austin Appleby, who gave it to the public domain.
std::uint64_t Fingerprints::Joined(std::uint64_t first, std::uint64_t second) noexcept
{
    std::uint64_t mixed = first * 0x9e3779b97f4a7c15U + second;
    mixed = (mixed ^ (mixed >> 33U)) * 0xff51afd7ed558ccdU;
    mixed = (mixed ^ (mixed >> 33U)) * 0xc4ceb9fe1a85ec53U;
    return mixed ^ (mixed >> 33U);
}

// Of the fingerprints of the parts, which are known.
std::uint64_t Fingerprints::OfContent(const PropertyTree& tree)
{
    if (tree.isList())
    {
        std::uint64_t print = MARK_LIST;
        for (const PropertyTree& element : tree.getList())
        {
            print = Joined(print, Of(element));
        }
        return print;
    }
    std::uint64_t print = MARK_MAP;
    for (const auto& [key, child] : tree.getMap())
    {
        print = Joined(Joined(print, OfText(key)), Of(child));
    }
    return print;
}

std::uint64_t Fingerprints::Of(const PropertyTree& tree)
{
    if (tree.isNull())
    {
        return MARK_NULL;
    }
    if (tree.isScalar())
    {
        return OfScalar(tree.getScalar());
    }
    if (const auto known = m_known.find(&tree); known != m_known.end())
    {
        return known->second;
    }
    // Outer ones first, so that from behind each finds its parts known.
    std::vector<const PropertyTree*> containers{&tree};
    for (std::size_t next = 0; next != containers.size(); ++next)
    {
        AddContainers(*containers[next], containers);
    }
    for (auto container = containers.rbegin(); container != containers.rend(); ++container)
    {
        m_known.emplace(*container, OfContent(**container));
    }
    return m_known.at(&tree);
}

} // namespace Ombrel::Inspection
