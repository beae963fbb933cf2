#include "Fuzz.h"
#include "Mutation.h"
#include "StoredEffects.h"

#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <string>
#include <utility>

// Most inputs are trees that get far. Now and then the text itself is changed, as libFuzzer does it.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace Fuzz
{
namespace
{

using namespace Ombrel;

PropertyTree TreeOf(std::string_view text)
{
    try
    {
        return ReadJson(text, {.nonFiniteAsText = true});
    }
    catch (const JsonError&)
    {
        return {}; // an effect takes its place
    }
}

std::string Mutated(std::string_view text, Mutation& mutation)
{
    PropertyTree tree = TreeOf(text);
    for (std::size_t count = mutation.Below(3) + 1; count > 0; --count)
    {
        mutation.ChangeInput(tree);
    }
    return WriteJson(tree, {.nonFiniteAsText = true});
}

} // namespace
} // namespace Fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed);

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    Fuzz::Mutation mutation(seed);
    if (mutation.IsOneIn(16))
    {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    const std::string text = Fuzz::Mutated({reinterpret_cast<const char*>(data), size}, mutation);
    if (text.size() > maxSize)
    {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    std::ranges::copy(text, data);
    return text.size();
}
