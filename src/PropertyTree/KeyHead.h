#ifndef OMBREL_PROPERTY_TREE_KEY_HEAD_H
#define OMBREL_PROPERTY_TREE_KEY_HEAD_H

#include "OmbrelExport.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace Ombrel
{

/// Reads so many characters as a number, the first one as its highest byte, so that numbers compare as the texts do.
template <std::size_t... I> constexpr std::uint64_t NumberAt(const char* text, std::index_sequence<I...>) noexcept
{
    return ((std::uint64_t{static_cast<unsigned char>(text[I])} << 8 * (sizeof...(I) - 1 - I)) | ...); // one load
}

/// The first eight characters of a key as a number; a shorter key is padded with zeros. If the heads of two keys differ, they
/// compare as the keys do.
constexpr std::uint64_t HeadOf(std::string_view key) noexcept
{
    const std::size_t size = key.size();
    if (size >= 8)
    {
        return NumberAt(key.data(), std::make_index_sequence<8>());
    }
    const std::size_t missing = 8 * (8 - size); // bits
    if (size >= 4)
    {
        const std::uint64_t first = NumberAt(key.data(), std::make_index_sequence<4>());
        const std::uint64_t last = NumberAt(key.data() + size - 4, std::make_index_sequence<4>());
        return first << 32 | last << missing; // where they overlap, their characters are the same
    }
    std::uint64_t head = 0;
    for (const char character : key)
    {
        head = head << 8 | static_cast<unsigned char>(character);
    }
    return size == 0 ? 0 : head << missing;
}

} // namespace Ombrel

#endif
