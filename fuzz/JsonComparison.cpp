#include "JsonComparison.h"

#include "Fuzz.h"
#include "ReferenceReader.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <string>
#include <tuple>
#include <variant>

namespace Fuzz
{
namespace
{

using namespace Ombrel;

// Line, column and path.
using Place = std::tuple<std::size_t, std::size_t, std::string>;

template <class Reader>
std::variant<PropertyTree, Place> Outcome(Reader read, std::string_view text, const JsonReadOptions& options)
{
    try
    {
        return read(text, options);
    }
    catch (const JsonError& error)
    {
        return Place(error.line(), error.column(), error.path());
    }
}

bool AreIdentical(const PropertyTreeScalar& a, const PropertyTreeScalar& b)
{
    if (a.kind() != b.kind())
    {
        return false;
    }
    if (a.kind() == PropertyTreeScalar::Kind::Float)
    {
        return std::bit_cast<std::uint64_t>(a.toDouble()) == std::bit_cast<std::uint64_t>(b.toDouble());
    }
    return a == b;
}

bool AreIdentical(const PropertyTree& a, const PropertyTree& b)
{
    if (a.isScalar() && b.isScalar())
    {
        return AreIdentical(a.getScalar(), b.getScalar());
    }
    if (a.isList() && b.isList())
    {
        return std::ranges::equal(a.getList(), b.getList(), [](const auto& x, const auto& y) { return AreIdentical(x, y); });
    }
    if (a.isMap() && b.isMap())
    {
        return std::ranges::equal(a.getMap(), b.getMap(),
                                  [](const auto& x, const auto& y)
                                  { return x.first == y.first && AreIdentical(x.second, y.second); });
    }
    return a.isNull() && b.isNull();
}

std::string TextOf(const std::variant<PropertyTree, Place>& outcome)
{
    if (const auto* tree = std::get_if<PropertyTree>(&outcome))
    {
        return WriteJson(*tree, {.nonFiniteAsText = true});
    }
    const auto& [line, column, path] = std::get<Place>(outcome);
    return std::to_string(line) + ":" + std::to_string(column) + ": at " + path;
}

} // namespace

bool CompareReaders(std::string_view text, const JsonReadOptions& options)
{
    // A copy without a byte behind it, for the sanitizers to see who looks there.
    const std::vector<char> exact(text.begin(), text.end());
    const std::string_view exactText(exact.data(), exact.size());
    const auto found = Outcome(&ReadJson, exactText, options);
    const auto expected = Outcome(&ReadByReference, text, options);
    const auto* const tree = std::get_if<PropertyTree>(&expected);
    const bool isSame = found.index() == expected.index() && (tree ? AreIdentical(std::get<PropertyTree>(found), *tree)
                                                                   : std::get<Place>(found) == std::get<Place>(expected));
    if (!isSame)
    {
        const std::string limits = std::to_string(options.maxDepth) + " levels, " + std::to_string(options.maxValues) +
                                   " values, " + std::to_string(options.maxBytes) + " bytes" +
                                   (options.nonFiniteAsText ? ", non-finite" : "");
        Require(false, "the readers differ",
                "with " + limits + " in\n" + std::string(text) + "\nexpected " + TextOf(expected) + "\nfound    " +
                    TextOf(found));
    }
    return tree != nullptr;
}

} // namespace Fuzz
