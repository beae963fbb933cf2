#include "Inspection/Forms.h"
#include "Inspection/KnownClass.h"
#include "Inspection/Release.h"
#include "Inspection/ReleaseCheck.h"
#include "Inspection/TreeSteps.h"
#include "Inspection/Values.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

namespace StoredKeys = Proc::StoredKeys;

// Brings effects into the form for a release, in place. Effects in effects wait on a stack, so that their nesting costs no
// stack of the thread.
class ConversionWalk
{
public:
    explicit ConversionWalk(const Release::Model& release) : m_release(release) {}

    void Run(PropertyTree& effectOrList, const PropertyTree& full)
    {
        m_pending.push_back({&effectOrList, &full});
        if (effectOrList.isList())
        {
            m_pending.clear();
            for (std::size_t index = 0; index != effectOrList.getList().size(); ++index)
            {
                m_pending.push_back({&effectOrList.getList()[index], &full.getList()[index]});
            }
        }
        for (std::size_t depth = 1; !m_pending.empty() && depth <= DEEPEST; ++depth)
        {
            const std::vector<Effect> level = std::exchange(m_pending, {});
            for (const Effect& effect : level)
            {
                VisitEffect(effect);
            }
        }
    }

private:
    struct Effect
    {
        PropertyTree* tree;
        const PropertyTree* full;
    };

    void VisitEffect(const Effect& effect)
    {
        const PhotoCore::EffectClass* const own = KnownClassOf(*effect.tree);
        if (!own || !IsOwn(*own))
        {
            return;
        }
        const auto released = m_release.classes.find(own->classId);
        if (released != m_release.classes.end())
        {
            VisitMap(effect.tree->getMap(), *effect.full, released->second.keys, own->getSchema(), true);
        }
    }

    void VisitMap(PropertyTree::Map& map, const PropertyTree& full, const ReleaseRecord& record, const RecordSchema* own,
                  bool isEffect)
    {
        for (const ReleaseField& field : record.fields)
        {
            const PropertyTree* const here = ChildAt(&full, PathStep(field.key));
            if (here && !map.contains(field.key) && IsOtherFor(field.value, *here, field.byDefault))
            {
                if (std::optional<PropertyTree> value = Projected(*here, field.value))
                {
                    map[field.key] = std::move(*value);
                }
            }
        }
        for (auto entry = map.begin(); entry != map.end();)
        {
            const PropertyTree* const here = ChildAt(&full, PathStep(std::string(entry->first)));
            const bool isHarmless = !record.Find(entry->first) && here && IsOwnDefault(*here, own, entry->first, m_infos);
            entry = isHarmless ? map.erase(entry) : std::next(entry);
        }
        for (auto& [key, value] : map) // whose entries now stay where they are
        {
            if (const ReleaseField* const field = record.Find(key))
            {
                const PropertyTree* const here = ChildAt(&full, PathStep(std::string(key)));
                VisitValue(value, here ? *here : value, field->value, OwnValueOf(own, key, isEffect));
            }
        }
    }

    void VisitValue(PropertyTree& value, const PropertyTree& full, const ReleaseValue& released, const ValueSchema* own)
    {
        if (!own || own->kind != released.schema.kind)
        {
            return;
        }
        if (own->kind == ValueKind::Record && value.isMap())
        {
            VisitMap(value.getMap(), full, *released.record, &own->record(), false);
        }
        else if (own->kind == ValueKind::Effect && value.isMap())
        {
            m_pending.push_back({&value, &full});
        }
        else if (own->kind == ValueKind::Enum && IsText(value))
        {
            Rename(value, *released.schema.names, *own->names);
        }
        else if ((own->kind == ValueKind::List || own->kind == ValueKind::Set) && value.isList())
        {
            for (std::size_t index = 0; index != value.getList().size(); ++index)
            {
                const PropertyTree* const here = ChildAt(&full, PathStep(index));
                PropertyTree& element = value.getList()[index];
                VisitValue(element, here ? *here : element, *released.element, own->element);
            }
        }
    }

    // A name that the release lacks becomes its name of the same number.
    static void Rename(PropertyTree& value, const Proc::EnumNameTable& released, const Proc::EnumNameTable& own)
    {
        const std::string& name = value.getScalar().toString();
        const auto has = [&name](const Proc::EnumNameTable& table)
        { return std::ranges::any_of(table.rows, [&name](const Proc::EnumNameRow& row) { return row.name == name; }); };
        const std::int32_t number = own.ValueOf(name);
        if (has(released) || (!has(own) && released.ValueOf(name) == number))
        {
            return;
        }
        const std::string_view other = released.NameOf(number);
        if (!other.empty() && own.ValueOf(other) == number)
        {
            value = std::string(other);
        }
    }

    static const ValueSchema* OwnValueOf(const RecordSchema* own, std::string_view key, bool isEffect)
    {
        if (isEffect && key == StoredKeys::HELPER_SETTINGS)
        {
            return &HELPER_SETTINGS_VALUE;
        }
        const auto field = own ? Proc::FindField(*own, key) : std::nullopt;
        return field ? own->fields[*field].value : nullptr;
    }

    // A default of this library with the keys that the release knows; nothing if the release cannot read it.
    std::optional<PropertyTree> Projected(const PropertyTree& full, const ReleaseValue& released)
    {
        PropertyTree value = full;
        Project(value, released);
        static constexpr Place ROOT{};
        CheckContext context;
        Findings findings(context);
        ValueCheck values(findings, context);
        return Takes(value, released, values, findings, ROOT) ? std::optional(std::move(value)) : std::nullopt;
    }

    static void Project(PropertyTree& value, const ReleaseValue& released)
    {
        if (released.record && value.isMap())
        {
            PropertyTree::Map& map = value.getMap();
            for (auto entry = map.begin(); entry != map.end();)
            {
                if (const ReleaseField* field = released.record->Find(entry->first))
                {
                    Project(entry->second, field->value);
                    ++entry;
                }
                else
                {
                    entry = map.erase(entry);
                }
            }
        }
        else if (released.element && value.isList())
        {
            for (PropertyTree& element : value.getList())
            {
                Project(element, *released.element);
            }
        }
    }

    static bool Takes(const PropertyTree& value, const ReleaseValue& released, ValueCheck& values, const Findings& findings,
                      const Place& place)
    {
        if (released.record)
        {
            if (!value.isMap())
            {
                return false;
            }
            for (const auto& [key, child] : value.getMap())
            {
                if (!Takes(child, released.record->Find(key)->value, values, findings, place))
                {
                    return false;
                }
            }
            return true;
        }
        if (released.IsSimple())
        {
            values.Check(value, released.schema, place);
            return findings.IsEmpty();
        }
        if (released.element)
        {
            return value.isList() &&
                   std::ranges::all_of(value.getList(), [&](const PropertyTree& element)
                                       { return Takes(element, *released.element, values, findings, place); });
        }
        return value.isNull(); // an effect
    }

    const Release::Model& m_release;
    RecordInfos m_infos;
    std::vector<Effect> m_pending;
};

} // namespace

Conversion ConvertedFor(const Release& release, PropertyTree effectOrList)
{
    Conversion conversion;
    conversion.tree = std::move(effectOrList);
    const PropertyTree full = Freeze(conversion.tree);
    ConversionWalk(release.GetModel()).Run(conversion.tree, full);
    conversion.losses = LossesFor(release, conversion.tree);
    return conversion;
}

} // namespace Ombrel::Inspection
