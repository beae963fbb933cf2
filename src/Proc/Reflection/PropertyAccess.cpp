#include "Proc/Reflection/PropertyAccess.h"

#include <span>

namespace Ombrel::Proc
{

PropertyAccess::PropertyAccess(const RecordSchema& schema, void* record) noexcept : m_schema(schema), m_record(record) {}

PropertyAccess::~PropertyAccess() = default;

PropertyTree PropertyAccess::GetProperty(const std::string& key) const
{
    constexpr WriteFlags flags{.resetTargets = true, .omitDefaults = false};
    PropertyTree value;
    if (const auto index = FindField(m_schema, key))
    {
        m_schema.writeField(*index, m_record, value, &flags);
    }
    return value;
}

void PropertyAccess::SetProperty(const std::string& key, const PropertyTree& value)
{
    constexpr ReadFlags flags{.resetMissing = false};
    if (const auto index = FindField(m_schema, key))
    {
        m_schema.readField(*index, m_record, value, &flags);
    }
}

std::vector<std::string> PropertyAccess::ListProperties() const
{
    std::vector<std::string> keys;
    keys.reserve(m_schema.fields.size());
    for (const SortedKey& key : std::span(m_schema.sortedKeys, m_schema.fields.size()))
    {
        keys.emplace_back(m_schema.fields[key.index].key);
    }
    return keys;
}

} // namespace Ombrel::Proc
