#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_KEY_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_KEY_H

#include "OmbrelExport.h"
#include "PropertyTree/KeyHead.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace Ombrel
{

/// The key of an entry. An entry refers to the text, and the text is the first member, so the entry has the whole key. A key is
/// either a known text, which many entries share, or belongs to its entry alone.
struct PropertyTreeKey
{
    friend bool operator==(const PropertyTreeKey& a, const PropertyTreeKey& b) noexcept { return &a == &b || a.text == b.text; }

    std::string text;
    std::uint64_t head; // `HeadOf(text)`
};

static_assert(std::is_standard_layout_v<PropertyTreeKey>);

/// @param text of a PropertyTreeKey
inline const PropertyTreeKey& KeyOf(const std::string& text) noexcept
{
    return reinterpret_cast<const PropertyTreeKey&>(text);
}

/// A key to look for.
struct PropertyTreeKeyView
{
    explicit PropertyTreeKeyView(std::string_view key) noexcept : text(key), head(HeadOf(key)) {}
    explicit PropertyTreeKeyView(const PropertyTreeKey& key) noexcept : text(key.text), head(key.head) {}

    friend bool operator<(const PropertyTreeKeyView& a, const PropertyTreeKeyView& b) noexcept
    {
        return a.head != b.head ? a.head < b.head : a.text < b.text;
    }

    std::string_view text;
    std::uint64_t head;
};

} // namespace Ombrel

#endif
