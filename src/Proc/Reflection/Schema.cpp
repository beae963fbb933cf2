#include "Proc/Reflection/Schema.h"

#include "PropertyTree/PropertyTreeMapFiller.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace Ombrel::Proc
{
namespace
{

// Of a key with the same head. Few have more than 15 characters, for which a call of `memcmp` would take longer than the rest
// of a step.
bool IsKey(const std::string& text, const SortedKey& key, const FieldSchema* fields)
{
    constexpr std::size_t headSize = sizeof(key.head);
    if (text.size() != key.size || key.size <= headSize)
    {
        return text.size() == key.size;
    }
    if (key.size <= SHORT_KEY)
    {
        const std::size_t last = key.size - headSize;                                // overlaps with the head
        return std::memcmp(text.data() + last, key.beginning + last, headSize) == 0; // two loads
    }
    return text == fields[key.index].key;
}

} // namespace

void FindChildren(const RecordSchema& schema, const PropertyTree::Map& source, const PropertyTree** children)
{
    const std::span fields = schema.fields;
    std::fill_n(children, fields.size(), nullptr);
    const auto merge = [&schema, fields, children](auto walk)
    {
        const SortedKey* key = schema.sortedKeys;
        const SortedKey* const endKey = key + fields.size();
        while (!walk.IsAtEnd() && key != endKey)
        {
            const std::uint64_t head = walk.Head();
            bool isBefore = head < key->head;
            if (head == key->head)
            {
                const auto& [text, child] = *walk.entry;
                if (IsKey(text, *key, fields.data()))
                {
                    children[key->index] = &child;
                    walk.Next();
                    ++key;
                    continue;
                }
                isBefore = text < fields[key->index].key;
            }
            if (isBefore)
            {
                walk.Next();
            }
            else
            {
                ++key;
            }
        }
    };
    PropertyTreeMapWalk::Through(source, merge);
}

WriteTargets::WriteTargets(const RecordSchema& schema, PropertyTree::Map& map, bool* isWritten,
                           PropertyTree** children) noexcept
    : m_schema(schema), m_map(map), m_isNew(isWritten), m_children(children)
{
    std::fill_n(children, schema.fields.size(), nullptr);
}

// The delegated-to constructor is done, so a failure in here runs the destructor.
WriteTargets::WriteTargets(const RecordSchema& schema, PropertyTree::Map& map, std::size_t others, bool* isWritten,
                           PropertyTree** children)
    : WriteTargets(schema, map, isWritten, children)
{
    const std::span fields = schema.fields;
    const auto count = static_cast<std::size_t>(std::count(isWritten, isWritten + fields.size(), true));
    if (count == 0)
    {
        return;
    }
    const std::span sortedKeys(schema.sortedKeys, fields.size());
    if (map.empty())
    {
        PropertyTreeMapFiller filler(map, count + others);
        for (const SortedKey& key : sortedKeys)
        {
            if (isWritten[key.index])
            {
                children[key.index] = key.size <= SHORT_KEY ? &filler.AppendShort(key.beginning, key.size, key.head)
                                                            : &filler.Append(fields[key.index].key, key.head);
            }
        }
        return;
    }
    map.reserve(map.size() + count + others);
    for (const SortedKey& key : sortedKeys)
    {
        const std::size_t index = key.index;
        if (isWritten[index])
        {
            isWritten[index] = !map.contains(fields[index].key);
            children[index] = &map[fields[index].key];
        }
    }
}

void WriteTargets::Withdraw() noexcept
{
    for (std::size_t index = 0; index != m_schema.fields.size(); ++index)
    {
        if (m_children[index] && m_isNew[index])
        {
            m_map.erase(m_schema.fields[index].key);
        }
    }
}

std::optional<std::size_t> FindField(const RecordSchema& schema, std::string_view key)
{
    const std::span sortedKeys(schema.sortedKeys, schema.fields.size());
    const auto keyOf = [&schema](const SortedKey& sorted) { return schema.fields[sorted.index].key; };
    const auto found = std::ranges::lower_bound(sortedKeys, key, {}, keyOf);
    if (found == sortedKeys.end() || keyOf(*found) != key)
    {
        return std::nullopt;
    }
    return found->index;
}

} // namespace Ombrel::Proc
