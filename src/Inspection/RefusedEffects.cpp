#include "Inspection/RefusedEffects.h"

#include "Exception/Exception.h"
#include "Inspection/Place.h"
#include "Inspection/SharedPaths.h"
#include "Inspection/TreeSteps.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Settings/StoredKeys.h"

#include <cstddef>
#include <deque>
#include <exception>
#include <new>
#include <string_view>
#include <utility>
#include <variant>

namespace Ombrel::Inspection
{
namespace
{

using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

// What the map of an effect or a record has; null for an effect without a schema and for other values.
const RecordSchema* FieldsOf(const PropertyTree& value, const ValueSchema& schema)
{
    if (!value.isMap())
    {
        return nullptr;
    }
    if (schema.kind == ValueKind::Effect)
    {
        return SchemaOfEffect(value);
    }
    return schema.kind == ValueKind::Record ? &schema.record() : nullptr;
}

// Calls `visit` with the key or the index, the child and its schema, for each child that is an effect or may hold one.
template <class Visit>
void ForEachHolder(const PropertyTree& value, const ValueSchema& schema, RecordInfos& infos, const Visit& visit)
{
    if (value.isList() && schema.element && infos.HoldsEffects(*schema.element))
    {
        const PropertyTree::List& list = value.getList();
        for (std::size_t index = 0; index != list.size(); ++index)
        {
            visit(std::string_view(), index, list[index], *schema.element);
        }
    }
    else if (const RecordSchema* record = FieldsOf(value, schema))
    {
        const std::vector<bool>& holdsEffects = infos.Of(*record).holdsEffects;
        const Children children(*record, value.getMap());
        for (std::size_t index = 0; index != record->fields.size(); ++index)
        {
            if (children[index] && holdsEffects[index])
            {
                const Proc::FieldSchema& field = record->fields[index];
                visit(field.key, Place::NO_INDEX, *children[index], *field.value);
            }
        }
    }
}

// A part of a tree that is still to be copied.
struct Copying
{
    const PropertyTree* from;
    PropertyTree* to;
    const ValueSchema* schema;
};

// Copies a value, but what may hold effects only when its turn comes.
void CopyPart(const Copying& part, const EffectSet* without, RecordInfos& infos, std::vector<Copying>& pending)
{
    const auto isLeftOut = [without](const PropertyTree& value, const ValueSchema& schema)
    { return schema.kind == ValueKind::Effect && (!without || without->contains(&value)); };
    if (part.from->isList() && part.schema->element && infos.HoldsEffects(*part.schema->element))
    {
        PropertyTree::List& list = part.to->makeList(part.from->getList().size()); // whose elements stay where they are
        for (const PropertyTree& element : part.from->getList())
        {
            if (!isLeftOut(element, *part.schema->element))
            {
                pending.push_back({&element, &list.emplace_back(), part.schema->element});
            }
        }
        return;
    }
    const RecordSchema* record = FieldsOf(*part.from, *part.schema);
    if (!record)
    {
        *part.to = *part.from;
        return;
    }
    const std::vector<bool>& holdsEffects = infos.Of(*record).holdsEffects;
    PropertyTree::Map& map = part.to->makeMap(part.from->getMap().size());
    for (const auto& [key, child] : part.from->getMap())
    {
        const auto field = Proc::FindField(*record, key);
        if (!field || !holdsEffects[*field])
        {
            map[key] = child;
        }
        else if (!isLeftOut(child, *record->fields[*field].value))
        {
            pending.push_back({&child, &map[key], record->fields[*field].value});
        }
    }
}

} // namespace

const RecordSchema* SchemaOfEffect(const PropertyTree& effect)
{
    const auto name = effect.getMap().find(Proc::StoredKeys::NAME);
    if (name == effect.getMap().end() || !name->second.isScalar() ||
        name->second.getScalar().kind() != PropertyTreeScalar::Kind::String)
    {
        return nullptr;
    }
    const PhotoCore::EffectClass* effectClass = PhotoCore::FindEffectClass(name->second.getScalar().toString());
    return effectClass ? effectClass->getSchema() : nullptr;
}

void AddRefused(const PropertyTree& effect, std::span<const Finding> findings, std::size_t steps, EffectSet& refused)
{
    const auto follow = [steps](const PropertyTree* from, const Path& path)
    { return Find(*from, Steps(path.OwnSteps()).subspan(path.Start() ? 0 : steps)); };
    SharedPaths<const PropertyTree*> effects;
    for (const Finding& finding : findings)
    {
        if (SeverityOf(finding.code) == Severity::Error)
        {
            refused.insert(effects.Find(finding.path.Start(), &effect, follow));
        }
    }
}

PropertyTree WithoutEffects(const PropertyTree& effect, const EffectSet* without, RecordInfos& infos)
{
    PropertyTree copy;
    std::vector<Copying> pending{{&effect, &copy, &EFFECT_VALUE}};
    while (!pending.empty())
    {
        const Copying part = pending.back();
        pending.pop_back();
        CopyPart(part, without, infos, pending);
    }
    return copy;
}

// Each effect is tried without the effects in it, so that all of them together are read once.
void AddFailing(const PropertyTree& effect, const std::shared_ptr<const Path>& base, EffectSet& refused,
                std::vector<Finding>& findings)
{
    struct Part
    {
        const PropertyTree* value;
        const ValueSchema* schema;
        const Place* place;
    };
    static constexpr Place root{};
    RecordInfos infos;
    std::deque<Place> places;
    std::vector<Part> pending{{&effect, &EFFECT_VALUE, &root}};
    while (!pending.empty())
    {
        const Part part = pending.back();
        pending.pop_back();
        if (part.schema->kind == ValueKind::Effect)
        {
            if (part.value->isNull() || refused.contains(part.value))
            {
                continue;
            }
            std::shared_ptr<PhotoCore::IEffectSettings> alone;
            PropertyTree written;
            const std::string reason = ReadAndWrite(WithoutEffects(*part.value, nullptr, infos), alone, written);
            if (!reason.empty())
            {
                AddFailing(*part.value, Path(base, part.place->StepsFrom(root)), reason, refused, findings);
                continue;
            }
        }
        ForEachHolder(*part.value, *part.schema, infos,
                      [&](std::string_view key, std::size_t index, const PropertyTree& child, const ValueSchema& schema)
                      {
                          places.push_back({.parent = part.place, .key = key, .index = index});
                          pending.push_back({&child, &schema, &places.back()});
                      });
    }
}

void AddFailing(const PropertyTree& effect, Path path, const std::string& reason, EffectSet& refused,
                std::vector<Finding>& findings)
{
    Finding& finding = findings.emplace_back();
    finding.path = std::move(path);
    finding.code = FindingCode::Refused;
    finding.message = "the class refuses it: " + reason;
    finding.found = effect;
    refused.insert(&effect);
}

std::string ReadAndWrite(const PropertyTree& tree, std::shared_ptr<PhotoCore::IEffectSettings>& effect, PropertyTree& written)
{
    try
    {
        PhotoCore::EffectSettings::DeserializePtr(tree, effect);
        PhotoCore::EffectSettings::SerializePtr(written, effect);
        return {};
    }
    catch (const std::bad_alloc&)
    {
        throw;
    }
    catch (const std::exception& failure)
    {
        const std::string reason = DescribeFailure(failure);
        return reason.empty() ? "a failure without a text" : reason;
    }
    catch (...)
    {
        return "an unknown failure";
    }
}

} // namespace Ombrel::Inspection
