#include "Inspection/RecordInfo.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Ombrel::Inspection
{

using Proc::ValueKind;

// A record is entered before its fields are looked at, so that one that holds itself ends the search.
RecordInfo& RecordInfos::InfoOf(const Proc::RecordSchema& schema)
{
    const auto [entry, isNew] = m_infos.try_emplace(&schema);
    RecordInfo& info = entry->second;
    if (!isNew)
    {
        return info;
    }
    for (const Proc::FieldSchema& field : schema.fields)
    {
        const bool isMember = field.access.find(',') == std::string_view::npos && field.value->kind != ValueKind::Other;
        info.isPlain.push_back(isMember && field.value->kind <= ValueKind::Color);
        info.hasSetters = info.hasSetters || !isMember;
    }
    info.holdsEffects.resize(schema.fields.size());
    std::vector<bool> isSimpleList;
    for (std::size_t index = 0; index != schema.fields.size(); ++index)
    {
        info.holdsEffects[index] = HoldsEffects(*schema.fields[index].value);
        isSimpleList.push_back(IsSimpleList(*schema.fields[index].value));
    }
    info.isSimpleList = std::move(isSimpleList); // until then no field is simple, not even one that holds the record
    return info;
}

// Each element is written, so only the fields of its records may be left out, each where it is its default.
bool RecordInfos::IsSimpleList(const Proc::ValueSchema& schema)
{
    if (schema.kind != ValueKind::List && schema.kind != ValueKind::Set && schema.kind != ValueKind::ColorMap)
    {
        return false;
    }
    if (schema.element->kind != ValueKind::Record)
    {
        return schema.element->kind <= ValueKind::Color || IsSimpleList(*schema.element);
    }
    const RecordInfo& element = InfoOf(schema.element->record());
    return schema.element->record().name != "pair" && // which is written whole
           !element.hasSetters && element.isPlain.size() == schema.element->record().fields.size() &&
           std::ranges::count(element.isPlain, false) == 0;
}

const RecordInfo& RecordInfos::Of(const Proc::RecordSchema& schema)
{
    return InfoOf(schema);
}

bool RecordInfos::HoldsEffects(const Proc::ValueSchema& schema)
{
    switch (schema.kind)
    {
    case ValueKind::Effect:
        return true;
    case ValueKind::List:
    case ValueKind::Set:
        return HoldsEffects(*schema.element);
    case ValueKind::Record:
        return std::ranges::count(InfoOf(schema.record()).holdsEffects, true) != 0;
    default:
        return false;
    }
}

const std::vector<PropertyTree>& RecordInfos::DefaultsOf(const Proc::RecordSchema& schema)
{
    RecordInfo& info = InfoOf(schema);
    if (info.defaults.empty())
    {
        constexpr Proc::WriteFlags whole{.resetTargets = true, .omitDefaults = false};
        std::vector<PropertyTree> defaults(schema.fields.size());
        for (std::size_t index = 0; index != defaults.size(); ++index)
        {
            schema.writeField(index, schema.defaults(), defaults[index], &whole);
        }
        info.defaults = std::move(defaults);
    }
    return info.defaults;
}

Children::Children(const Proc::RecordSchema& schema, const PropertyTree::Map& map)
{
    const std::size_t count = schema.fields.size();
    if (count > m_few.size())
    {
        m_many.resize(count);
    }
    m_children = {count > m_few.size() ? m_many.data() : m_few.data(), count};
    Proc::FindChildren(schema, map, m_children.data());
}

std::size_t Children::Count() const noexcept
{
    return m_children.size() - static_cast<std::size_t>(std::ranges::count(m_children, nullptr));
}

} // namespace Ombrel::Inspection
