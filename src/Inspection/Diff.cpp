#include "Inspection/DiffWalk.h"

#include "Inspection/Forms.h"
#include "Inspection/KnownClass.h"
#include "Inspection/ListAlignment.h"
#include "Inspection/ListMoves.h"
#include "Inspection/RefusedEffects.h"
#include "Inspection/TreeEditor.h"
#include "Inspection/Values.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

namespace StoredKeys = Proc::StoredKeys;

bool AreBothMaps(const PropertyTree& a, const PropertyTree& b)
{
    return a.isMap() && b.isMap();
}

bool AreBothLists(const PropertyTree& a, const PropertyTree& b)
{
    return a.isList() && b.isList();
}

// What is known of a key in the map of an effect or a record.
const ValueSchema* SchemaOfKey(const ValueSchema& schema, const PropertyTree& map, std::string_view key)
{
    const RecordSchema* record = nullptr;
    if (schema.kind == ValueKind::Effect)
    {
        const PhotoCore::EffectClass* effectClass = KnownClassOf(map);
        if (!effectClass)
        {
            return nullptr;
        }
        if (key == StoredKeys::IMPL_NAME)
        {
            return &IMPL_NAME_VALUE;
        }
        if (key == StoredKeys::HELPER_SETTINGS)
        {
            return &HELPER_SETTINGS_VALUE;
        }
        record = effectClass->getSchema();
    }
    else
    {
        record = &schema.record();
    }
    const auto field = record ? Proc::FindField(*record, key) : std::nullopt;
    return field ? record->fields[*field].value : nullptr;
}

} // namespace

ChangeList DiffWalk::Run(const PropertyTree& before, const PropertyTree& after)
{
    static constexpr Place ROOT{};
    Value root{.storedBefore = &before, .storedAfter = &after, .schema = &EFFECT_VALUE, .place = &ROOT};
    if (AreBothLists(before, after))
    {
        // What is stored alike needs no full form.
        std::span<const PropertyTree> one(before.getList());
        std::span<const PropertyTree> other(after.getList());
        std::size_t offset = 0;
        while (!one.empty() && !other.empty() && AreSame(one.front(), other.front()))
        {
            one = one.subspan(1);
            other = other.subspan(1);
            ++offset;
        }
        while (!one.empty() && !other.empty() && AreSame(one.back(), other.back()))
        {
            one = one.first(one.size() - 1);
            other = other.first(other.size() - 1);
        }
        // Where one has more elements and no others, neither does what is put in or taken out.
        const bool isOneSided = one.empty() || other.empty();
        VisitElements({.list = root,
                       .offset = offset,
                       .base = {},
                       .before = isOneSided ? one : Frozen(one).getList(),
                       .after = isOneSided ? other : Frozen(other).getList(),
                       .storedBefore = one.data(),
                       .storedAfter = other.data()});
    }
    else if (!AreSame(before, after))
    {
        root.before = &m_frozen.emplace_back(Freeze(before));
        root.after = &m_frozen.emplace_back(Freeze(after));
        Visit(root);
    }
    VisitPending();
    return std::move(m_changes);
}

void DiffWalk::VisitPending()
{
    while (!m_pending.empty())
    {
        const Value value = m_pending.back();
        m_pending.pop_back();
        if (m_conflicts)
        {
            VisitThree(value);
        }
        else
        {
            Visit(value);
        }
    }
}

const PropertyTree& DiffWalk::Frozen(std::span<const PropertyTree> elements)
{
    PropertyTree list;
    list.makeList(elements.size()).assign(elements.begin(), elements.end());
    return m_frozen.emplace_back(Freeze(std::move(list)));
}

void DiffWalk::Visit(const Value& value)
{
    const PropertyTree* const before = value.before;
    const PropertyTree* const after = value.after;
    const ValueSchema* const schema = value.schema;
    const ValueKind kind = schema ? schema->kind : ValueKind::Other;
    if (!before || !after)
    {
        AddValue(value);
    }
    else if (AreBothMaps(*before, *after) &&
             (kind == ValueKind::Record || (kind == ValueKind::Effect && HaveSameName(*before, *after))))
    {
        VisitMap(value);
    }
    else if (kind == ValueKind::List && AreBothLists(*before, *after))
    {
        VisitElements(ElementsOf(value));
    }
    else if (IsUnordered(schema) ? !AreSameUnordered(*before, *after) : !AreSame(*before, *after))
    {
        AddValue(value);
    }
}

DiffWalk::ListRest DiffWalk::ElementsOf(const Value& list)
{
    const bool isStored = list.storedBefore && list.storedBefore->isList();
    const bool isStoredAfter = list.storedAfter && list.storedAfter->isList();
    return {.list = list,
            .base = list.base && list.base->isList() ? std::span<const PropertyTree>(list.base->getList())
                                                     : std::span<const PropertyTree>(),
            .before = list.before->getList(),
            .after = list.after->getList(),
            .storedBefore = isStored ? list.storedBefore->getList().data() : nullptr,
            .storedAfter = isStoredAfter ? list.storedAfter->getList().data() : nullptr,
            .element = list.schema->element};
}

void DiffWalk::VisitMap(const Value& value)
{
    Absent* const absent = AbsentIn(value);
    const std::size_t start = m_pending.size();
    const PropertyTree::Map& after = value.after->getMap();
    auto next = after.begin();
    for (const auto& [key, child] : value.before->getMap())
    {
        for (; next != after.end() && next->first < key; ++next)
        {
            VisitKey(value, absent, next->first, nullptr, &next->second);
        }
        const bool isInBoth = next != after.end() && next->first == key;
        VisitKey(value, absent, key, &child, isInBoth ? &next->second : nullptr);
        if (isInBoth)
        {
            ++next;
        }
    }
    for (; next != after.end(); ++next)
    {
        VisitKey(value, absent, next->first, nullptr, &next->second);
    }
    std::reverse(m_pending.begin() + static_cast<std::ptrdiff_t>(start), m_pending.end());
}

void DiffWalk::VisitKey(const Value& map, Absent* absent, std::string_view key, const PropertyTree* before,
                        const PropertyTree* after)
{
    if (before && after && before->isScalar() && after->isScalar() && AreSame(*before, *after))
    {
        return; // as most are
    }
    const PathStep step{std::string(key)};
    const ValueSchema* schema = SchemaOfKey(*map.schema, *map.before, key);
    m_pending.emplace_back(Value{.before = before,
                                 .after = after,
                                 .storedBefore = ChildAt(map.storedBefore, step),
                                 .storedAfter = ChildAt(map.storedAfter, step),
                                 .base = ChildAt(map.base, step),
                                 .schema = schema,
                                 .place = Below(map.place, key, schema && schema->kind == ValueKind::Effect),
                                 .absent = absent,
                                 .isStoredAroundAfter = map.storedAfter != nullptr});
}

void DiffWalk::VisitElements(const ListRest& rest)
{
    VisitEntries(rest, EntriesOf(rest));
}

DiffWalk::Entries DiffWalk::EntriesOf(const ListRest& rest)
{
    Entries entries;
    if (rest.AreEffects())
    {
        const ListAlignment alignment(rest.before, rest.after, true, m_prints);
        for (std::size_t index = 0; index != rest.after.size(); ++index)
        {
            entries.push_back({.before = alignment.Origins()[index], .after = index, .base = NONE});
        }
        return entries;
    }
    for (std::size_t index = 0; index != rest.after.size(); ++index)
    {
        entries.push_back({.before = index < rest.before.size() ? index : NONE,
                           .after = index,
                           .base = index < rest.base.size() ? index : NONE});
    }
    return entries;
}

void DiffWalk::VisitEntries(ListRest rest, const Entries& entries)
{
    rest.absent = rest.list.before ? AbsentIn(rest.list) : nullptr;
    AddStructure(rest, entries);
    for (std::size_t index = entries.size(); index-- != 0;)
    {
        const Entry& entry = entries[index];
        if (entry.before == NONE || entry.after == NONE)
        {
            continue;
        }
        const PropertyTree& before = rest.before[entry.before];
        const PropertyTree& after = rest.after[entry.after];
        if (!(before.isScalar() && after.isScalar() && AreSame(before, after)))
        {
            m_pending.push_back({.before = &before,
                                 .after = &after,
                                 .storedBefore = rest.storedBefore ? rest.storedBefore + entry.before : nullptr,
                                 .storedAfter = rest.storedAfter ? rest.storedAfter + entry.after : nullptr,
                                 .base = entry.base == NONE ? nullptr : &rest.base[entry.base],
                                 .schema = rest.element,
                                 .place = Below(rest.list.place, rest.offset + index, rest.AreEffects()),
                                 .absent = rest.absent,
                                 .isStoredAroundAfter = rest.storedAfter != nullptr});
        }
    }
}

// What went, from behind; what moved; what came, from the front.
void DiffWalk::AddStructure(const ListRest& rest, const Entries& entries)
{
    std::vector<std::size_t> places(rest.before.size(), NONE); // by index before: the one without those that went
    for (const Entry& entry : entries)
    {
        if (entry.before != NONE)
        {
            places[entry.before] = 0;
        }
    }
    // The full form of an effect is many times as long. It can be made from the stored one where it does not depend on effects
    // around it.
    const bool isOfDocument = !rest.list.before;
    const auto given = [isOfDocument](std::span<const PropertyTree> full, const PropertyTree* inFile, std::size_t index)
    { return isOfDocument ? inFile[index] : full[index]; };
    const auto stored = [](std::span<const PropertyTree> full, const PropertyTree* inFile,
                           std::size_t index) -> const PropertyTree& { return inFile ? inFile[index] : full[index]; };
    for (std::size_t index = places.size(); index-- != 0;)
    {
        if (places[index] == NONE)
        {
            Change change{.kind = ChangeKind::Remove, .before = given(rest.before, rest.storedBefore, index)};
            AddElement(rest, std::move(change), index, stored(rest.before, rest.storedBefore, index));
        }
    }
    std::size_t count = 0; // of those that are left
    for (std::size_t& place : places)
    {
        if (place != NONE)
        {
            place = count++;
        }
    }
    std::vector<std::size_t> order; // of those that are left, where each was
    std::vector<std::size_t> origins;
    for (const Entry& entry : entries)
    {
        if (entry.before != NONE)
        {
            order.push_back(places[entry.before]);
            origins.push_back(entry.before);
        }
    }
    for (const ListMove& move : MovesTo(order))
    {
        const std::size_t origin = origins[move.element];
        Change change{
            .kind = ChangeKind::Move, .target = rest.offset + move.to, .before = given(rest.before, rest.storedBefore, origin)};
        change.after = change.before;
        AddElement(rest, std::move(change), move.from, stored(rest.before, rest.storedBefore, origin));
    }
    for (std::size_t index = 0; index != entries.size(); ++index)
    {
        if (entries[index].before == NONE)
        {
            const std::size_t after = entries[index].after;
            Change change{.kind = ChangeKind::Insert, .after = given(rest.after, rest.storedAfter, after)};
            AddElement(rest, std::move(change), index, stored(rest.after, rest.storedAfter, after));
        }
    }
}

// Null if the file has the map or list, or a change before has put it there; else what is first missing on the way to it.
DiffWalk::Absent* DiffWalk::AbsentIn(const Value& container)
{
    if (container.storedBefore || container.absent)
    {
        return container.absent;
    }
    return &m_absent.emplace_back(Absent{.whole = container.before, .place = container.place});
}

const Place* DiffWalk::Below(const Place* parent, std::string_view key, bool isOfEffect)
{
    return &m_context.places.emplace_back(Place{.parent = parent, .key = key, .isOfEffect = isOfEffect});
}

const Place* DiffWalk::Below(const Place* parent, std::size_t index, bool isOfEffect)
{
    return &m_context.places.emplace_back(Place{.parent = parent, .key = {}, .index = index, .isOfEffect = isOfEffect});
}

Path DiffWalk::PathOf(const Place& place)
{
    const Place& effect = place.Effect();
    return {m_context.PathOfEffect(effect), place.StepsFrom(effect)};
}

void DiffWalk::AddValue(const Value& value)
{
    Change change{.path = PathOf(*value.place), .before = CopyOf(value.before), .after = CopyOf(value.after)};
    change.isUnordered = IsUnordered(value.schema);
    if (value.absent && !value.absent->isStored)
    {
        change.stored = WholeOf(*value.absent, change);
    }
    else
    {
        change.stored.path = change.path;
        change.stored.before = CopyOf(value.absent ? value.before : value.storedBefore);
        // A key that is in neither map has the same default there; elsewhere the default must be written.
        const bool isMissing = !value.storedAfter && value.isStoredAroundAfter && !value.absent;
        change.stored.after = isMissing ? std::nullopt : CopyOf(value.storedAfter ? value.storedAfter : value.after);
    }
    m_changes.push_back(std::move(change));
}

/// @param stored the element as the file has it, or as it is put into the file
void DiffWalk::AddElement(const ListRest& rest, Change change, std::size_t index, const PropertyTree& stored)
{
    change.path = PathOf(Place{.parent = rest.list.place, .key = {}, .index = rest.offset + index});
    if (rest.absent && !rest.absent->isStored)
    {
        change.stored = WholeOf(*rest.absent, change);
    }
    else
    {
        change.stored.path = change.path;
        (change.kind == ChangeKind::Insert ? change.stored.after : change.stored.before) = stored;
        if (change.kind == ChangeKind::Move)
        {
            change.stored.after = change.stored.before;
        }
    }
    m_changes.push_back(std::move(change));
}

// The record or list that the file does not have, with every key and with the change.
Change::Storing DiffWalk::WholeOf(Absent& absent, const Change& change)
{
    absent.isStored = true;
    Change::Storing stored{.path = PathOf(*absent.place), .before = std::nullopt, .after = *absent.whole};
    const std::vector<PathStep> steps = change.path.Steps();
    TreeEditor editor;
    editor.Execute(*stored.after, Steps(steps).subspan(stored.path.Steps().size()), change, change.after);
    editor.Close(*stored.after);
    return stored;
}

ChangeList Diff(const PropertyTree& before, const PropertyTree& after)
{
    return DiffWalk().Run(before, after);
}

} // namespace Ombrel::Inspection
