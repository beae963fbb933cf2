#include "Proc/Reflection/Schema.h"

#include <algorithm>
#include <string>

namespace Ombrel::Proc
{
namespace
{

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
    const std::size_t size = schema.fields.size();
    std::fill_n(children, size, nullptr);
    auto entry = source.begin();
    const auto end = source.end();
    for (std::size_t place = 0; entry != end && place != size;)
    {
        const std::size_t index = schema.keyOrder[place];
        const std::string_view key = schema.fields[index].key;
        if (entry->first == key)
        {
            children[index] = &entry->second;
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
    const std::size_t size = schema.fields.size();
    const auto count = static_cast<std::size_t>(std::count(isWritten, isWritten + size, true));
    if (count == 0)
    {
        return;
    }
    std::size_t known = map.size();
    map.reserve(known + count + others);
    for (const std::uint16_t index : std::span(schema.keyOrder, size))
    {
        if (isWritten[index])
        {
            children[index] = &map[schema.fields[index].key];
            isWritten[index] = map.size() != known;
            known = map.size();
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
