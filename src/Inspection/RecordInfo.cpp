#include "Inspection/RecordInfo.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace Ombrel::Inspection
{

using Proc::ValueKind;

bool IsPlain(const Proc::FieldSchema& field) noexcept
{
    return field.value->kind <= ValueKind::Color && field.access.find(',') == std::string_view::npos;
}

bool HoldsEffects(const Proc::ValueSchema& schema) noexcept
{
    switch (schema.kind)
    {
    case ValueKind::Effect:
        return true;
    case ValueKind::List:
    case ValueKind::Set:
        return HoldsEffects(*schema.element);
    case ValueKind::Record:
        for (const Proc::FieldSchema& field : schema.record().fields)
        {
            if (HoldsEffects(*field.value))
            {
                return true;
            }
        }
        return false;
    default:
        return false;
    }
}

const RecordInfo& RecordInfos::Of(const Proc::RecordSchema& schema)
{
    const auto found = m_infos.find(&schema);
    if (found != m_infos.end())
    {
        return found->second;
    }
    constexpr Proc::WriteFlags whole{.resetTargets = true, .omitDefaults = false};
    RecordInfo info;
    PropertyTree::Map& defaults = info.defaults.makeMap(schema.fields.size());
    for (std::size_t index = 0; index != schema.fields.size(); ++index)
    {
        schema.writeField(index, schema.defaults(), defaults[schema.fields[index].key], &whole);
    }
    return m_infos.emplace(&schema, std::move(info)).first->second;
}

} // namespace Ombrel::Inspection
