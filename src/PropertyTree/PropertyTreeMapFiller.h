#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_FILLER_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_MAP_FILLER_H

#include "PropertyTree/PropertyTreeMapInternals.h"

#include <cstddef>
#include <string_view>

namespace Ombrel
{

/// Fills an empty map in key order. A caller that copies a map or has sorted the keys knows what `operator[]` has to find out
/// for every key: that there is room and that the key comes after all others. The map has the entries when this object is gone.
class OMBREL_LOCAL PropertyTreeMapFiller
{
public:
    /// @param map without entries; nobody else uses it while it is filled
    /// @param count how many entries it gets room for
    /// @throws std::bad_alloc, std::length_error as `reserve`
    PropertyTreeMapFiller(PropertyTreeMap& map, std::size_t count)
    {
        map.reserve(count);
        m_root = map.m_root;
        m_next = m_root ? m_root->Slots() : nullptr;
    }

    PropertyTreeMapFiller(const PropertyTreeMapFiller&) = delete;
    PropertyTreeMapFiller& operator=(const PropertyTreeMapFiller&) = delete;

    ~PropertyTreeMapFiller()
    {
        if (m_root)
        {
            m_root->size = static_cast<std::size_t>(m_next - m_root->Slots());
            m_root->used = static_cast<std::uint32_t>(m_root->size);
        }
    }

    /// Adds a null child.
    /// @param key a known text that comes after all keys of the map
    PropertyTree& AppendKnown(const PropertyTreeKey& key) noexcept
    {
        return PropertyTreeMap::Internals::Construct(m_next++, key).second;
    }

    /// The same for any text.
    /// @throws std::bad_alloc, without the child
    PropertyTree& Append(std::string_view key)
    {
        return AppendKnown(*PropertyTreeMap::Internals::MakeKey(PropertyTreeKeyView(key)).release());
    }

    /// The same for a key of another map.
    PropertyTree& AppendCopy(const PropertyTreeKey& key)
    {
        return AppendKnown(m_known.Holds(&key) ? key : *new PropertyTreeKey(key));
    }

    /// The child under `key`, inserted as a null tree if missing, as `operator[]` of a map gives it. Where that saves memory,
    /// the entries behind a new one move.
    /// @param map to whose entries nobody holds a reference or an iterator
    static PropertyTree& FindOrInsertMoving(PropertyTreeMap& map, std::string_view key);

private:
    PropertyTreeMap::Root* m_root;
    PropertyTreeMap::value_type* m_next; // slot
    KnownTexts::Range m_known = KnownTexts::Range(KnownTexts::GetIfMade());
};

/// Calls `visit` with a walk through the entries of a map in key order. If the map is as it was filled, the walk steps from
/// slot to slot; else it uses iterators.
class OMBREL_LOCAL PropertyTreeMapWalk
{
public:
    template <class Visit> static void Through(const PropertyTreeMap& map, const Visit& visit)
    {
        PropertyTreeMap::Root* root = map.m_root;
        if (root && root->IsPlain())
        {
            visit(Walk<const PropertyTreeMap::value_type*>{root->Slots(), root->End<PropertyTreeMap::value_type>()});
        }
        else if (root)
        {
            visit(Walk<PropertyTreeMap::const_iterator>{map.begin(), map.end()});
        }
    }

private:
    template <class Step> struct Walk
    {
        bool IsAtEnd() const noexcept { return entry == end; }
        const PropertyTreeKey& Key() const noexcept { return KeyOf(entry->first); }
        void Next() noexcept { ++entry; }

        Step entry;
        Step end;
    };
};

} // namespace Ombrel

#endif
