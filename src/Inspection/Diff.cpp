#include "Inspection/Changes.h"

#include "Inspection/CheckContext.h"
#include "Inspection/Fingerprints.h"
#include "Inspection/Forms.h"
#include "Inspection/KnownClass.h"
#include "Inspection/ListAlignment.h"
#include "Inspection/ListMoves.h"
#include "Inspection/Place.h"
#include "Inspection/RefusedEffects.h"
#include "Inspection/TreeSteps.h"
#include "Inspection/Values.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <deque>
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

std::optional<PropertyTree> CopyOf(const PropertyTree* value)
{
    return value ? std::optional(*value) : std::nullopt;
}

bool AreBothMaps(const PropertyTree& a, const PropertyTree& b)
{
    return a.isMap() && b.isMap();
}

bool AreBothLists(const PropertyTree& a, const PropertyTree& b)
{
    return a.isList() && b.isList();
}

bool HaveSameName(const PropertyTree& a, const PropertyTree& b)
{
    const PathStep name{std::string(StoredKeys::NAME)};
    const PropertyTree* one = ChildAt(&a, name);
    const PropertyTree* other = ChildAt(&b, name);
    return one && other ? AreSame(*one, *other) : one == other;
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

// Compares two documents. Parts wait on a stack, so that nesting costs no stack of the thread; they come off it in the order of
// the keys. First comes what a list has more or less, then what differs within its elements, which by then have their new
// indices.
class DiffWalk
{
public:
    ChangeList Run(const PropertyTree& before, const PropertyTree& after);

private:
    // The record or list that stands around a value by default alone. The first change in it stores the whole.
    struct Absent
    {
        const PropertyTree* whole;
        const Place* place;
        bool isStored = false;
    };

    // One value in both documents, full and as it is stored; null where it is missing.
    struct Value
    {
        const PropertyTree* before = nullptr;
        const PropertyTree* after = nullptr;
        const PropertyTree* storedBefore = nullptr;
        const PropertyTree* storedAfter = nullptr;
        const ValueSchema* schema = nullptr; // null where nothing is known of it
        const Place* place = nullptr;
        Absent* absent = nullptr;        // around it
        bool isStoredAroundAfter = true; // whether a key that is not stored after has the default beside its neighbours
    };

    // The elements of a list that are left to be compared.
    struct ListRest
    {
        Value list;
        std::size_t offset = 0; // of the first of them in the list
        std::span<const PropertyTree> before;
        std::span<const PropertyTree> after;
        const PropertyTree* storedBefore = nullptr; // the first of them, or null
        const PropertyTree* storedAfter = nullptr;
        std::vector<std::size_t> origins; // of those after
        Absent* absent = nullptr;         // around them
    };

    void Visit(const Value& value);
    void VisitMap(const Value& value);
    void VisitKey(const Value& map, Absent* absent, std::string_view key, const PropertyTree* before,
                  const PropertyTree* after);
    void VisitElements(ListRest rest);
    void AddStructure(const ListRest& rest);

    Absent* AbsentIn(const Value& container);
    const Place* Below(const Place* parent, std::string_view key, bool isOfEffect);
    const Place* Below(const Place* parent, std::size_t index, bool isOfEffect);
    const PropertyTree& Frozen(std::span<const PropertyTree> elements);

    Path PathOf(const Place& place);
    void AddValue(const Value& value);
    void AddElement(const ListRest& rest, Change change, std::size_t index, const PropertyTree& stored);
    Change::Storing WholeOf(Absent& absent, const Change& change);

    CheckContext m_context;
    Fingerprints m_prints;
    std::deque<PropertyTree> m_frozen;
    std::deque<Absent> m_absent;
    std::vector<Value> m_pending;
    ChangeList m_changes;
};

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
                       .before = isOneSided ? one : Frozen(one).getList(),
                       .after = isOneSided ? other : Frozen(other).getList(),
                       .storedBefore = one.data(),
                       .storedAfter = other.data(),
                       .origins = {}});
    }
    else if (!AreSame(before, after))
    {
        root.before = &m_frozen.emplace_back(Freeze(before));
        root.after = &m_frozen.emplace_back(Freeze(after));
        Visit(root);
    }
    while (!m_pending.empty())
    {
        const Value value = m_pending.back();
        m_pending.pop_back();
        Visit(value);
    }
    return std::move(m_changes);
}

const PropertyTree& DiffWalk::Frozen(std::span<const PropertyTree> elements)
{
    PropertyTree list;
    list.makeList(elements.size()).assign(elements.begin(), elements.end());
    return m_frozen.emplace_back(Freeze(std::move(list)));
}

void DiffWalk::Visit(const Value& value)
{
    const auto& [before, after, storedBefore, storedAfter, schema, place, absent, isAround] = value;
    const ValueKind kind = schema ? schema->kind : ValueKind::Other;
    if (!before || !after)
    {
        AddValue(value);
    }
    else if ((kind == ValueKind::Effect && AreBothMaps(*before, *after) && HaveSameName(*before, *after)) ||
             (kind == ValueKind::Record && AreBothMaps(*before, *after)))
    {
        VisitMap(value);
    }
    else if (kind == ValueKind::List && AreBothLists(*before, *after))
    {
        const bool isStored = storedBefore && storedBefore->isList();
        const bool isStoredAfter = storedAfter && storedAfter->isList();
        VisitElements({.list = value,
                       .before = before->getList(),
                       .after = after->getList(),
                       .storedBefore = isStored ? storedBefore->getList().data() : nullptr,
                       .storedAfter = isStoredAfter ? storedAfter->getList().data() : nullptr,
                       .origins = {}});
    }
    else if ((kind == ValueKind::Set || kind == ValueKind::ColorMap) ? !AreSameUnordered(*before, *after)
                                                                     : !AreSame(*before, *after))
    {
        AddValue(value);
    }
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
                                 .schema = schema,
                                 .place = Below(map.place, key, schema && schema->kind == ValueKind::Effect),
                                 .absent = absent,
                                 .isStoredAroundAfter = map.storedAfter != nullptr});
}

void DiffWalk::VisitElements(ListRest rest)
{
    const ValueSchema* schema = rest.list.before ? rest.list.schema->element : &EFFECT_VALUE;
    const bool areEffects = schema->kind == ValueKind::Effect;
    if (areEffects)
    {
        rest.origins = ListAlignment(rest.before, rest.after, true, m_prints).Origins();
    }
    else
    {
        rest.origins.resize(rest.after.size(), ListAlignment::NONE);
        const std::size_t common = std::min(rest.before.size(), rest.after.size());
        std::iota(rest.origins.begin(), rest.origins.begin() + static_cast<std::ptrdiff_t>(common), std::size_t{0});
    }
    rest.absent = rest.list.before ? AbsentIn(rest.list) : nullptr;
    AddStructure(rest);
    for (std::size_t index = rest.after.size(); index-- != 0;)
    {
        const std::size_t origin = rest.origins[index];
        const PropertyTree* before = origin == ListAlignment::NONE ? nullptr : &rest.before[origin];
        const PropertyTree& after = rest.after[index];
        if (before && !(before->isScalar() && after.isScalar() && AreSame(*before, after)))
        {
            m_pending.push_back({.before = before,
                                 .after = &after,
                                 .storedBefore = rest.storedBefore ? rest.storedBefore + origin : nullptr,
                                 .storedAfter = rest.storedAfter ? rest.storedAfter + index : nullptr,
                                 .schema = schema,
                                 .place = Below(rest.list.place, rest.offset + index, areEffects),
                                 .absent = rest.absent,
                                 .isStoredAroundAfter = rest.storedAfter != nullptr});
        }
    }
}

// What went, from behind; what moved; what came, from the front.
void DiffWalk::AddStructure(const ListRest& rest)
{
    std::vector<std::size_t> kept(rest.before.size(), ListAlignment::NONE); // by index before: 0 if it is found again
    for (const std::size_t origin : rest.origins)
    {
        if (origin != ListAlignment::NONE)
        {
            kept[origin] = 0;
        }
    }
    // The full form of an effect is many times as long. It can be made from the stored one where it does not depend on effects
    // around it.
    const bool isOfDocument = !rest.list.before;
    const auto given = [isOfDocument](std::span<const PropertyTree> full, const PropertyTree* inFile, std::size_t index)
    { return isOfDocument ? inFile[index] : full[index]; };
    const auto stored = [](std::span<const PropertyTree> full, const PropertyTree* inFile,
                           std::size_t index) -> const PropertyTree& { return inFile ? inFile[index] : full[index]; };
    for (std::size_t index = kept.size(); index-- != 0;)
    {
        if (kept[index] == ListAlignment::NONE)
        {
            Change change{.kind = ChangeKind::Remove, .path = {}, .before = given(rest.before, rest.storedBefore, index)};
            AddElement(rest, std::move(change), index, stored(rest.before, rest.storedBefore, index));
        }
    }
    std::size_t count = 0; // of those that are left
    for (std::size_t& place : kept)
    {
        if (place != ListAlignment::NONE)
        {
            place = count++;
        }
    }
    std::vector<std::size_t> order; // of those that are left, what each was
    std::vector<std::size_t> origins;
    for (const std::size_t origin : rest.origins)
    {
        if (origin != ListAlignment::NONE)
        {
            order.push_back(kept[origin]);
            origins.push_back(origin);
        }
    }
    for (const ListMove& move : MovesTo(order))
    {
        const std::size_t origin = origins[move.element];
        Change change{.kind = ChangeKind::Move,
                      .path = {},
                      .target = rest.offset + move.to,
                      .before = given(rest.before, rest.storedBefore, origin)};
        change.after = change.before;
        AddElement(rest, std::move(change), move.from, stored(rest.before, rest.storedBefore, origin));
    }
    for (std::size_t index = 0; index != rest.after.size(); ++index)
    {
        if (rest.origins[index] == ListAlignment::NONE)
        {
            Change change{.kind = ChangeKind::Insert, .path = {}, .after = given(rest.after, rest.storedAfter, index)};
            AddElement(rest, std::move(change), index, stored(rest.after, rest.storedAfter, index));
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
    change.isUnordered = value.schema && (value.schema->kind == ValueKind::Set || value.schema->kind == ValueKind::ColorMap);
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
    Execute(*stored.after, Steps(steps).subspan(stored.path.Steps().size()), change, change.after);
    return stored;
}

} // namespace

ChangeList Diff(const PropertyTree& before, const PropertyTree& after)
{
    return DiffWalk().Run(before, after);
}

} // namespace Ombrel::Inspection
