#include "Inspection/Usable.h"

#include <algorithm>

namespace Ombrel::Inspection
{

using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

bool IsUnusable(const PropertyTree& element, const ValueSchema& list, Findings& findings)
{
    return findings.HasError(element) ||
           (list.kind == ValueKind::ColorMap && element.isMap() &&
            std::ranges::any_of(element.getMap(), [&findings](const auto& entry) { return findings.HasError(entry.second); }));
}

void CopyUsable(const PropertyTree& from, PropertyTree& to, const ValueSchema& schema, Findings& findings, Copies* copies)
{
    if (copies)
    {
        copies->emplace(&from, &to);
    }
    if (from.isList() && schema.element)
    {
        PropertyTree::List& list = to.makeList(from.getList().size());
        for (const PropertyTree& element : from.getList())
        {
            if (!IsUnusable(element, schema, findings))
            {
                CopyUsable(element, list.emplace_back(), *schema.element, findings, copies);
            }
        }
    }
    else if (from.isMap() && schema.kind == ValueKind::Record)
    {
        PropertyTree::Map& map = to.makeMap(from.getMap().size());
        const RecordSchema& record = schema.record();
        for (const auto& [key, child] : from.getMap())
        {
            const auto field = Proc::FindField(record, key);
            if (field && !findings.HasError(child))
            {
                CopyUsable(child, map[key], *record.fields[*field].value, findings, copies);
            }
        }
    }
    else if (schema.kind != ValueKind::Effect)
    {
        to = from;
    }
}

} // namespace Ombrel::Inspection
