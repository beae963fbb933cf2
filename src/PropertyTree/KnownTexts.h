#ifndef OMBREL_PROPERTY_TREE_KNOWN_TEXTS_H
#define OMBREL_PROPERTY_TREE_KNOWN_TEXTS_H

#include "OmbrelExport.h"
#include "PropertyTree/PropertyTreeKey.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Ombrel
{

/// The texts that the library itself writes into trees: keys of fields, names of enumerations and class ids. Each exists once,
/// and trees refer to it instead of holding a copy. All other texts belong to the trees that hold them.
class OMBREL_LOCAL KnownTexts
{
public:
    /// Lists the texts; each may be named several times.
    using Source = std::vector<std::string_view> (*)();

    /// Says where the texts come from. Until then no text is known; a tree made earlier holds copies, which compare equal.
    static void SetSource(Source source) noexcept;

    /// The texts, listed by the first call after `SetSource`. They last until the library is unloaded, like every `Lasting`
    /// constant.
    /// @throws std::bad_alloc; the next call then tries again
    static const KnownTexts* Get();

    /// The texts if they have been listed, else null.
    static const KnownTexts* GetIfMade() noexcept;

    explicit KnownTexts(const std::vector<std::string_view>& texts);

    /// The text as a key, or null.
    const PropertyTreeKey* Find(const PropertyTreeKeyView& text) const noexcept;
    const PropertyTreeKey* Find(std::string_view text) const noexcept { return Find(PropertyTreeKeyView(text)); }

    /// Tells the keys of known texts from those that belong to an entry.
    class Range
    {
    public:
        /// @param texts may be null
        explicit Range(const KnownTexts* texts) noexcept
            : m_begin(texts ? reinterpret_cast<std::uintptr_t>(texts->m_keys.data()) : 0),
              m_bytes(texts ? texts->m_keys.size() * sizeof(PropertyTreeKey) : 0)
        {
        }

        bool Holds(const PropertyTreeKey* key) const noexcept
        {
            return reinterpret_cast<std::uintptr_t>(key) - m_begin < m_bytes; // the keys of others stand anywhere
        }

    private:
        std::uintptr_t m_begin;
        std::size_t m_bytes;
    };

private:
    std::vector<PropertyTreeKey> m_keys;
    std::vector<std::uint16_t> m_numbers; // a hash table: of the keys, from 1; 0 for none
};

} // namespace Ombrel

#endif
