#include "Fuzz.h"
#include "JsonComparison.h"

#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <optional>

// JSON text: an error with a place, or a tree that comes back the same from its own text; and both as the second reader has
// them.
namespace
{

using namespace Ombrel;

// Whether `text` has none of U+0000 to U+001F and U+007F to U+009F.
bool IsPrintable(std::string_view text)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    const auto isC1 = [](char a, char b) { return a == '\xC2' && static_cast<unsigned char>(b) < 0xA0; };
    return std::ranges::none_of(text, isControl) && std::ranges::adjacent_find(text, isC1) == text.end();
}

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
        Fuzz::Require(IsPrintable(error.what()), "a control character in a message", WriteJson(PropertyTree(error.what())));
        const std::string place = std::to_string(error.line()) + ":" + std::to_string(error.column()) + ": ";
        Fuzz::Require(std::string_view(error.what()).starts_with(place), "an error without its place", error.what());
        return std::nullopt;
    }
}

void Check(std::string_view text, bool nonFiniteAsText)
{
    const JsonReadOptions reading{.nonFiniteAsText = nonFiniteAsText};
    Fuzz::CompareReaders(text, reading);
    Fuzz::CompareReaders(text, {.maxDepth = 3, .nonFiniteAsText = nonFiniteAsText, .maxValues = 7});
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
    if (const auto few = TryRead(text, {.nonFiniteAsText = nonFiniteAsText, .maxValues = 3, .maxBytes = 64}))
    {
        Fuzz::Require(text.size() <= 64, "a text of too many bytes is read");
        Fuzz::RequireSame(*tree, *few, "a text reads otherwise with limits");
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
