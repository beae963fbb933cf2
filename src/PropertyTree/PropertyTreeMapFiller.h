#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_FILLER_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_FILLER_H

#include "PropertyTree/KeyHead.h"
#include "PropertyTree/PropertyTreeMapInternals.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Ombrel
{

/// Fills an empty map in key order. A caller that copies a map or has sorted the keys knows what `operator[]` has to find out
/// for every key: that there is room and that the key comes after all others.
class PropertyTreeMapFiller
{
public:
    /// @param map without entries; nothing else is added to it while it is filled
    /// @param count how many entries it gets room for
    /// @throws std::bad_alloc, std::length_error as `reserve`
    PropertyTreeMapFiller(PropertyTreeMap& map, std::size_t count)
    {
        map.reserve(count);
        m_root = map.m_root;
    }

    /// Adds a null child.
    /// @param key comes after all keys of the map
    /// @param head of the key
    /// @throws std::bad_alloc, without the child, if the key is too long to be stored inside a `std::string`
    PropertyTree& Append(std::string_view key, std::uint64_t head)
    {
        return PropertyTreeMap::Internals::Append(*m_root, head, m_root->size, key).second;
    }

    /// The same for a key of at most SHORT_KEY characters. `text` is padded to SHORT_KEY characters, since copying a constant
    /// number of characters is faster.
    PropertyTree& AppendShort(const char* text, std::size_t size, std::uint64_t head)
    {
        auto& [key, child] = PropertyTreeMap::Internals::Append(*m_root, head, m_root->size, text, SHORT_KEY);
        const_cast<std::string&>(key).resize(std::min(size, SHORT_KEY)); // so that the compiler sees that it never grows
        return child;
    }

    /// The child under `key`, inserted as a null tree if missing, as `operator[]` of a map gives it. Where that saves memory,
    /// the entries behind a new one move.
    /// @param map to whose entries nobody holds a reference or an iterator
    static PropertyTree& FindOrInsertMoving(PropertyTreeMap& map, std::string_view key);

private:
    PropertyTreeMap::Root* m_root;
};

/// Calls `visit` with a walk through the entries of a map in key order. If the map is as it was filled, the walk steps from
/// slot to slot and has the heads of the keys; else it uses iterators.
class PropertyTreeMapWalk
{
public:
    template <class Visit> static void Through(const PropertyTreeMap& map, const Visit& visit)
    {
        PropertyTreeMap::Root* root = map.m_root;
        if (root && !root->index && root->gaps == 0)
        {
            visit(InSlots{root->Slots(), root->end, root->Heads()});
        }
        else if (root)
        {
            visit(ByIterators{map.begin(), map.end()});
        }
    }

private:
    struct InSlots
    {
        bool IsAtEnd() const noexcept { return entry == end; }
        std::uint64_t Head() const noexcept { return *head; }

        void Next() noexcept
        {
            ++entry;
            ++head;
        }

        const PropertyTreeMap::value_type* entry;
        const PropertyTreeMap::value_type* end;
        const std::uint64_t* head;
    };

    struct ByIterators
    {
        bool IsAtEnd() const noexcept { return entry == end; }
        std::uint64_t Head() const noexcept { return HeadOf(entry->first); }
        void Next() noexcept { ++entry; }

        PropertyTreeMap::const_iterator entry;
        PropertyTreeMap::const_iterator end;
    };
};

} // namespace Ombrel

#endif
