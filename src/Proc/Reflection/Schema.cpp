#include "Proc/Reflection/Schema.h"

#include "OmbrelCompiler.h"
#include "PropertyTree/KnownTexts.h"
#include "PropertyTree/PropertyTreeMapFiller.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <span>
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

constexpr FieldBits BitOf(std::size_t place)
{
    return FieldBits{1} << place % FIELDS_OF_A_WORD;
}

// Calls `action` with the places of the bits that are set, in their order. It may clear the bit of its place.
template <class Action> void ForEach(std::span<const FieldBits> words, Action action)
{
    for (std::size_t word = 0; word != words.size(); ++word)
    {
        for (FieldBits rest = words[word]; rest != 0; rest &= rest - 1)
        {
            action(word * FIELDS_OF_A_WORD + static_cast<std::size_t>(std::countr_zero(rest)));
        }
    }
}

// Two threads that come here at once store the same.
OMBREL_NOINLINE void FindKnownKeys(const RecordSchema& schema)
{
    const KnownTexts* texts = KnownTexts::Get();
    for (std::size_t place = 0; texts && place != schema.fields.size(); ++place)
    {
        const std::string_view key = schema.fields[schema.sortedKeys[place].index].key;
        schema.knownKeys[place].store(texts->Find(key), std::memory_order_relaxed);
    }
    schema.areKeysFound->store(texts != nullptr, std::memory_order_release);
}

// By the places in the byte order of the keys.
class KnownKeys
{
public:
    explicit KnownKeys(const RecordSchema& schema) : m_keys(schema.knownKeys)
    {
        if (!schema.areKeysFound->load(std::memory_order_acquire))
        {
            FindKnownKeys(schema);
        }
    }

    const PropertyTreeKey* operator[](std::size_t place) const noexcept
    {
        return m_keys[place].load(std::memory_order_relaxed);
    }

private:
    const std::atomic<const PropertyTreeKey*>* m_keys;
};

} // namespace

void FindChildren(const RecordSchema& schema, const PropertyTree::Map& source, const PropertyTree** children)
{
    const FieldSchema* const fields = schema.fields.data();
    const SortedKey* const sortedKeys = schema.sortedKeys;
    const KnownKeys knownKeys(schema);
    const std::size_t count = schema.fields.size();
    std::size_t place = 0;
    PropertyTreeMapWalk::Through(
        source,
        [&](auto walk)
        {
            while (!walk.IsAtEnd() && place != count)
            {
                const SortedKey& sorted = sortedKeys[place];
                const PropertyTreeKey& key = walk.Key();
                const bool isSame = &key == knownKeys[place];
                if (isSame || (key.head == sorted.head && IsKey(key.text, sorted, fields)))
                {
                    children[sorted.index] = &walk.entry->second;
                    walk.Next();
                    ++place;
                }
                else if (key.head < sorted.head ||
                         (key.head == sorted.head && std::string_view(key.text) < fields[sorted.index].key))
                {
                    walk.Next();
                }
                else
                {
                    children[sorted.index] = nullptr;
                    ++place;
                }
            }
        });
    for (; place != count; ++place)
    {
        children[sortedKeys[place].index] = nullptr;
    }
}

WriteTargets::WriteTargets(const RecordSchema& schema, PropertyTree::Map& map, FieldBits* isNew) noexcept
    : m_schema(schema), m_map(map), m_isNew(isNew)
{
}

// The delegating constructor has returned, so a failure in this body runs the destructor.
WriteTargets::WriteTargets(const RecordSchema& schema, PropertyTree::Map& map, std::size_t others, FieldBits* isNew,
                           PropertyTree** children)
    : WriteTargets(schema, map, isNew)
{
    const std::span words(isNew, WordsFor(schema.fields.size()));
    const FieldSchema* const fields = schema.fields.data();
    const SortedKey* const sortedKeys = schema.sortedKeys;
    const bool wasEmpty = map.empty();
    if (!wasEmpty)
    {
        ForEach(words,
                [&](std::size_t place)
                {
                    const auto found = map.find(fields[sortedKeys[place].index].key);
                    if (found != map.end())
                    {
                        children[place] = &found->second;
                        words[place / FIELDS_OF_A_WORD] &= ~BitOf(place);
                    }
                });
    }
    std::size_t added = others;
    for (const FieldBits word : words)
    {
        for (FieldBits rest = word; rest != 0; rest &= rest - 1) // no processor of this kind must have a count of bits
        {
            ++added;
        }
    }
    if (!wasEmpty)
    {
        map.reserve(map.size() + added);
        ForEach(words, [&](std::size_t place) { children[place] = &map[fields[sortedKeys[place].index].key]; });
        return;
    }
    const KnownKeys knownKeys(schema);
    PropertyTreeMapFiller filler(map, added);
    ForEach(words,
            [&](std::size_t place)
            {
                const PropertyTreeKey* known = knownKeys[place];
                children[place] = known ? &filler.AppendKnown(*known) : &filler.Append(fields[sortedKeys[place].index].key);
            });
}

void WriteTargets::Withdraw() noexcept
{
    ForEach(std::span(m_isNew, WordsFor(m_schema.fields.size())),
            [this](std::size_t place)
            {
                const std::size_t index = m_schema.sortedKeys[place].index;
                if (index >= m_next)
                {
                    m_map.erase(m_schema.fields[index].key);
                }
            });
}

std::optional<std::size_t> FindField(const RecordSchema& schema, std::string_view key)
{
    const SortedKey* const keys = schema.sortedKeys;
    const std::size_t size = schema.fields.size();
    const std::uint64_t head = HeadOf(key);
    std::size_t first = 0; // of the keys whose head is not less; the search has no branch that depends on the keys
    for (std::size_t rest = size; rest != 0;)
    {
        const std::size_t half = (rest + 1) / 2;
        first += keys[first + half - 1].head < head ? half : 0;
        rest -= half;
    }
    for (; first != size && keys[first].head == head; ++first)
    {
        if (IsKey(key, keys[first], schema.fields.data()))
        {
            return keys[first].index;
        }
    }
    return std::nullopt;
}

} // namespace Ombrel::Proc
