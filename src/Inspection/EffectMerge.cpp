#include "Inspection/EffectMerge.h"

#include "Inspection/KnownClass.h"
#include "Inspection/Values.h"
#include "Proc/ImplNames.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <array>
#include <optional>

namespace Ombrel::Inspection
{
namespace
{

using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

namespace StoredKeys = Proc::StoredKeys;

bool IsThereAsMap(const PropertyTree* tree)
{
    return tree && tree->isMap();
}

bool IsThereAsList(const PropertyTree* tree)
{
    return tree && tree->isList();
}

bool IsNothing(const PropertyTree* tree)
{
    return !tree || tree->isNull();
}

bool IsSequence(const ValueSchema& schema)
{
    return schema.kind == ValueKind::List || schema.kind == ValueKind::Set || schema.kind == ValueKind::ColorMap;
}

const PropertyTree* ChildOf(const PropertyTree* tree, std::string_view key)
{
    if (!IsThereAsMap(tree))
    {
        return nullptr;
    }
    const auto found = tree->getMap().find(key);
    return found == tree->getMap().end() ? nullptr : &found->second;
}

const PropertyTree& DefaultImplName()
{
    static const PropertyTree name(Proc::ImplNames::DEFAULT_NAME);
    return name;
}

} // namespace

// Parts wait on a stack. The places that they go to are made before, and stay where they are.
PropertyTree EffectMerge::Merged(const PropertyTree& loaded, const PropertyTree& before, const PropertyTree& now)
{
    PropertyTree merged;
    PutElement({.loaded = &loaded, .before = &before, .now = &now, .schema = &EFFECT_VALUE}, merged);
    while (!m_pending.empty())
    {
        const Task task = m_pending.back();
        m_pending.pop_back();
        MergeInside(task);
    }
    return merged;
}

EffectMerge::Outcome EffectMerge::OutcomeOf(const Value& value)
{
    const auto& [loaded, before, now, schema, byDefault] = value;
    if (!before && !now)
    {
        return Outcome::Loaded; // an unknown key, or a default
    }
    if (schema && schema->kind == ValueKind::Effect)
    {
        return OutcomeOfEffect(value);
    }
    const auto areAll = [&value](bool (*isIt)(const PropertyTree*))
    { return isIt(value.loaded) && (!value.before || isIt(value.before)) && (!value.now || isIt(value.now)); };
    const bool isContainer =
        schema ? (schema->kind == ValueKind::Record && areAll(IsThereAsMap)) || (IsSequence(*schema) && areAll(IsThereAsList))
               : before && now && (areAll(IsThereAsMap) || areAll(IsThereAsList));
    if (isContainer)
    {
        return now || HasKept(value) ? Outcome::Inside : Outcome::Now;
    }
    const bool isSame = AreSameOrMissing(before ? before : byDefault, now ? now : byDefault);
    return isSame ? Outcome::Loaded : Outcome::Now;
}

EffectMerge::Outcome EffectMerge::OutcomeOfEffect(const Value& value) const
{
    const auto& [loaded, before, now, schema, byDefault] = value;
    if (IsNothing(before) && IsNothing(now))
    {
        return Outcome::Loaded;
    }
    const PropertyTree* was = ChildOf(before, StoredKeys::NAME);
    const PropertyTree* is = ChildOf(now, StoredKeys::NAME);
    return IsThereAsMap(loaded) && was && is && AreSame(*was, *is) ? Outcome::Inside : Outcome::Now;
}

// Whether a value that is no longer written holds what was not written before either, and so stays. In the elements of a list
// all has gone with them.
bool EffectMerge::HasKept(const Value& value) const
{
    std::vector<Value> pending{value};
    while (!pending.empty())
    {
        const Value part = pending.back();
        pending.pop_back();
        if (part.schema->kind == ValueKind::Record && IsThereAsMap(part.loaded))
        {
            const RecordSchema& record = part.schema->record();
            for (const auto& [key, child] : part.loaded->getMap())
            {
                const auto field = Proc::FindField(record, key);
                const PropertyTree* before = ChildOf(part.before, key);
                if (!field || !before)
                {
                    return true;
                }
                pending.push_back({.loaded = &child, .before = before, .schema = record.fields[*field].value});
            }
        }
        else if (part.schema->element && IsThereAsList(part.loaded) &&
                 std::ranges::any_of(part.loaded->getList(),
                                     [this](const PropertyTree& element) { return m_kept.contains(&element); }))
        {
            return true;
        }
    }
    return false;
}

void EffectMerge::Put(const Value& value, PropertyTree::Map& target, const std::string& key)
{
    const Outcome outcome = OutcomeOf(value);
    if (outcome == Outcome::Inside)
    {
        m_pending.push_back({value, &target[key]});
    }
    else if (const PropertyTree* given = outcome == Outcome::Loaded ? value.loaded : value.now)
    {
        target[key] = *given;
    }
}

void EffectMerge::PutElement(const Value& value, PropertyTree& target)
{
    const Outcome outcome = OutcomeOf(value);
    if (outcome == Outcome::Inside)
    {
        m_pending.push_back({value, &target});
    }
    else
    {
        target = outcome == Outcome::Loaded ? *value.loaded : *value.now;
    }
}

// The value under a key of a map.
EffectMerge::Value EffectMerge::FieldOf(const Value& outer, std::string_view key)
{
    Value value{.loaded = ChildOf(outer.loaded, key), .before = ChildOf(outer.before, key), .now = ChildOf(outer.now, key)};
    const RecordSchema* record = nullptr;
    if (outer.schema && outer.schema->kind == ValueKind::Effect)
    {
        if (key == StoredKeys::HELPER_SETTINGS)
        {
            value.schema = &HELPER_SETTINGS_VALUE;
            return value;
        }
        if (key == StoredKeys::IMPL_NAME)
        {
            value.schema = &IMPL_NAME_VALUE;
            value.byDefault = &DefaultImplName();
            return value;
        }
        record = SchemaOfEffect(*outer.loaded);
    }
    else if (outer.schema)
    {
        record = &outer.schema->record();
    }
    if (const auto field = record ? Proc::FindField(*record, key) : std::nullopt)
    {
        value.schema = record->fields[*field].value;
        value.byDefault = &m_context.infos.DefaultsOf(*record)[*field];
    }
    return value;
}

void EffectMerge::MergeInside(const Task& task)
{
    static const PropertyTree empty;
    Value value = task.value;
    // What is missing is its default. Without one, as for the helper settings, it is a record with the defaults of its fields.
    const PropertyTree* missing = value.byDefault ? value.byDefault : &empty;
    value.before = value.before ? value.before : missing;
    value.now = value.now ? value.now : missing;
    if (value.loaded->isMap())
    {
        MergeMaps(value, *task.target);
    }
    else if (value.schema && value.schema->kind == ValueKind::ColorMap)
    {
        MergeColorMaps(value, *task.target);
    }
    else if (value.schema && value.schema->kind == ValueKind::Set && value.schema->element->kind < ValueKind::ColorMap)
    {
        MergeSets(value, *task.target);
    }
    else
    {
        MergeLists(value, *task.target);
    }
}

// The keys that were loaded and those that are written now, in their order.
void EffectMerge::MergeMaps(const Value& value, PropertyTree& target)
{
    static const PropertyTree::Map none;
    const PropertyTree::Map& loaded = value.loaded->getMap();
    const PropertyTree::Map& now = value.now->isMap() ? value.now->getMap() : none;
    PropertyTree::Map& merged = target.makeMap(std::max(loaded.size(), now.size()));
    auto next = now.begin();
    for (const auto& [key, child] : loaded)
    {
        for (; next != now.end() && next->first < key; ++next)
        {
            Put(FieldOf(value, next->first), merged, next->first);
        }
        if (next != now.end() && next->first == key)
        {
            ++next;
        }
        Put(FieldOf(value, key), merged, key);
    }
    for (; next != now.end(); ++next)
    {
        Put(FieldOf(value, next->first), merged, next->first);
    }
}

} // namespace Ombrel::Inspection
