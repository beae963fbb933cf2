#include "Fuzz.h"

#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <optional>

// JSON text: an error with a place, or a tree that comes back the same from its own text.
namespace
{

using namespace Ombrel;

std::optional<PropertyTree> TryRead(std::string_view text, const JsonReadOptions& options)
{
    try
    {
        return ReadJson(text, options);
    }
    catch (const JsonError& error)
    {
        const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1;
        Fuzz::Require(error.line() >= 1 && error.line() <= lines, "an error beyond the last line", error.what());
        Fuzz::Require(error.column() >= 1 && error.column() <= text.size() + 1, "an error beyond the line's end", error.what());
        const std::string place = std::to_string(error.line()) + ":" + std::to_string(error.column()) + ": ";
        Fuzz::Require(std::string_view(error.what()).starts_with(place), "an error without its place", error.what());
        return std::nullopt;
    }
}

void Check(std::string_view text, bool nonFiniteAsText)
{
    const JsonReadOptions reading{.nonFiniteAsText = nonFiniteAsText};
    const auto tree = TryRead(text, reading);
    const auto shallow = TryRead(text, {.maxDepth = 3, .nonFiniteAsText = nonFiniteAsText});
    if (!tree)
    {
        Fuzz::Require(!shallow, "a text is read with less depth alone");
        return;
    }
    if (shallow)
    {
        Fuzz::RequireSame(*tree, *shallow, "a text reads otherwise with less depth");
    }
    const std::string written = WriteJson(*tree, {.nonFiniteAsText = nonFiniteAsText});
    const PropertyTree back = ReadJson(written, reading);
    Fuzz::RequireSame(*tree, back, "a written tree reads as another");
    Fuzz::Require(WriteJson(back, {.nonFiniteAsText = nonFiniteAsText}) == written, "a tree is written otherwise", written);
    const std::string indented = WriteJson(*tree, {.nonFiniteAsText = nonFiniteAsText, .indent = 2});
    Fuzz::RequireSame(*tree, ReadJson(indented, reading), "a tree reads otherwise from lines");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Check(text, false);
    Check(text, true);
    return 0;
}
