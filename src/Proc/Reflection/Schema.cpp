#include "Proc/Reflection/Schema.h"

#include "PropertyTree/PropertyTreeMapFiller.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace Ombrel::Proc
{
namespace
{

// Compares two keys with the same head. The characters after the head are compared by words; the last word overlaps with the
// one before. Keys are too short for a call of `memcmp` to pay.
bool IsKey(std::string_view text, const SortedKey& key, const FieldSchema* fields)
{
    constexpr std::size_t word = sizeof(key.head);
    if (text.size() != key.size || key.size <= word)
    {
        return text.size() == key.size;
    }
    const char* const wanted = fields[key.index].key.data();
    const std::size_t last = key.size - word;
    for (std::size_t place = word; place < last; place += word)
    {
        if (std::memcmp(text.data() + place, wanted + place, word) != 0)
        {
            return false;
        }
    }
    return std::memcmp(text.data() + last, wanted + last, word) == 0;
}

} // namespace

void FindChildren(const RecordSchema& schema, const PropertyTree::Map& source, const PropertyTree** children)
{
    const std::span fields = schema.fields;
    const SortedKey* rest = schema.sortedKeys;
    const SortedKey* const end = rest + fields.size();
    const auto merge = [&rest, end, fields, children](auto walk)
    {
        const SortedKey* key = rest;
        while (!walk.IsAtEnd() && key != end)
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
                children[key->index] = nullptr;
                ++key;
            }
        }
        rest = key;
    };
    PropertyTreeMapWalk::Through(source, merge);
    for (; rest != end; ++rest)
    {
        children[rest->index] = nullptr;
    }
}

WriteTargets::WriteTargets(const RecordSchema& schema, PropertyTree::Map& map, PropertyTree** children) noexcept
    : m_schema(schema), m_map(map), m_children(children)
{
    std::fill_n(children, schema.fields.size(), nullptr);
}

// The delegating constructor has returned, so a failure in this body runs the destructor.
WriteTargets::WriteTargets(const RecordSchema& schema, PropertyTree::Map& map, std::size_t others, const bool* isWritten,
                           bool* isNew, PropertyTree** children)
    : WriteTargets(schema, map, children)
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
        m_isNew = isWritten; // all that have a child
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
    m_isNew = isNew;
    map.reserve(map.size() + count + others);
    for (const SortedKey& key : sortedKeys)
    {
        const std::size_t index = key.index;
        if (isWritten[index])
        {
            isNew[index] = !map.contains(fields[index].key);
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
