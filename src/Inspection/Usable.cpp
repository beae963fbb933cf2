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

void CopyUsable(const PropertyTree& from, PropertyTree& to, const ValueSchema& schema, const Place& place, Findings& findings,
                Copies* copies)
{
    if (copies)
    {
        copies->emplace(&from, Copy{&to, place.StepsFrom(place.Effect())});
    }
    if (from.isList() && schema.element)
    {
        PropertyTree::List& list = to.makeList(from.getList().size());
        for (std::size_t index = 0; index != from.getList().size(); ++index)
        {
            const PropertyTree& element = from.getList()[index];
            if (!IsUnusable(element, schema, findings) && !(copies && findings.IsLeftOut(element)))
            {
                const Place at{.parent = &place, .key = {}, .index = index};
                CopyUsable(element, list.emplace_back(), *schema.element, at, findings, copies);
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
            if (field && !(copies ? findings.IsLeftOut(child) : findings.HasError(child)))
            {
                const Place at{.parent = &place, .key = key};
                CopyUsable(child, map[key], *record.fields[*field].value, at, findings, copies);
            }
        }
    }
    else if (schema.kind != ValueKind::Effect)
    {
        to = from;
    }
}

} // namespace Ombrel::Inspection
