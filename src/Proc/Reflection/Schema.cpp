#include "Proc/Reflection/Schema.h"

#include "PropertyTree/PropertyTreeMapFiller.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace Ombrel::Proc
{
namespace
{

template <class Number> bool BeginAlike(const char* a, const char* b)
{
    Number left;
    Number right;
    std::memcpy(&left, a, sizeof(Number));
    std::memcpy(&right, b, sizeof(Number));
    return left == right;
}

template <class Number> bool AreAlike(std::string_view a, std::string_view b)
{
    const std::size_t last = a.size() - sizeof(Number); // overlaps with the beginning
    return BeginAlike<Number>(a.data(), b.data()) && BeginAlike<Number>(a.data() + last, b.data() + last);
}

// As `==`: a call of `memcmp` would take longer than the rest of a step. Few keys have more than 16 characters.
bool AreEqual(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
    {
        return false;
    }
    if (a.size() >= sizeof(std::uint64_t))
    {
        return AreAlike<std::uint64_t>(a, b) && (a.size() <= 2 * sizeof(std::uint64_t) || a == b);
    }
    if (a.size() >= sizeof(std::uint32_t))
    {
        return AreAlike<std::uint32_t>(a, b);
    }
    return std::ranges::equal(a, b);
}

// Most different keys differ in their first character already.
bool IsBefore(std::string_view a, std::string_view b)
{
    if (!a.empty() && !b.empty() && a.front() != b.front())
    {
        return static_cast<unsigned char>(a.front()) < static_cast<unsigned char>(b.front());
    }
    return a < b;
}

} // namespace

void FindChildren(const RecordSchema& schema, const PropertyTree::Map& source, const PropertyTree** children)
{
    const std::span fields = schema.fields;
    std::fill_n(children, fields.size(), nullptr);
    const std::uint16_t* place = schema.keyOrder;
    const std::uint16_t* const endPlace = place + fields.size();
    const auto endEntry = source.end();
    for (auto entry = source.begin(); entry != endEntry && place != endPlace;)
    {
        const std::string_view key = fields[*place].key;
        if (AreEqual(entry->first, key))
        {
            children[*place] = &entry->second;
            ++entry;
            ++place;
        }
        else if (IsBefore(entry->first, key))
        {
            ++entry;
        }
        else
        {
            ++place;
        }
    }
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
    map.reserve(map.size() + count + others);
    const std::span order(schema.keyOrder, fields.size());
    if (map.empty())
    {
        PropertyTreeMapFiller filler(map);
        for (const std::uint16_t index : order)
        {
            if (isWritten[index])
            {
                children[index] = &filler.Append(fields[index].key);
            }
        }
        return;
    }
    for (const std::uint16_t index : order)
    {
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
    const std::span order(schema.keyOrder, schema.fields.size());
    const auto keyOf = [&schema](std::uint16_t index) { return schema.fields[index].key; };
    const auto found = std::ranges::lower_bound(order, key, {}, keyOf);
    if (found == order.end() || keyOf(*found) != key)
    {
        return std::nullopt;
    }
    return *found;
}

} // namespace Ombrel::Proc
