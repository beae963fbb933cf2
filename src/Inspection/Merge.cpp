#include "Inspection/Merge.h"

#include "Inspection/DiffWalk.h"
#include "Inspection/Forms.h"
#include "Inspection/KnownClass.h"
#include "Inspection/ListAlignment.h"
#include "Inspection/TreeSteps.h"
#include "Inspection/Values.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using Proc::ValueKind;

// What each of a list was in the base, turned around.
std::vector<std::size_t> Inverted(const std::vector<std::size_t>& origins, std::size_t size)
{
    std::vector<std::size_t> places(size, ListAlignment::NONE);
    for (std::size_t index = 0; index != origins.size(); ++index)
    {
        if (origins[index] != ListAlignment::NONE)
        {
            places[origins[index]] = index;
        }
    }
    return places;
}

bool Ascends(const std::vector<std::size_t>& order)
{
    return std::ranges::is_sorted(order);
}

} // namespace

ChangeList DiffWalk::Run(const PropertyTree& base, const PropertyTree& before, const PropertyTree& after,
                         std::vector<MergeConflict>& conflicts)
{
    static constexpr Place ROOT{};
    m_conflicts = &conflicts;
    const Value root{.storedBefore = &before, .storedAfter = &after, .schema = &EFFECT_VALUE, .place = &ROOT};
    m_document = root;
    m_document.base = &m_frozen.emplace_back(Freeze(base));
    m_document.before = &m_frozen.emplace_back(Freeze(before));
    m_document.after = &m_frozen.emplace_back(Freeze(after));
    if (base.isList() && before.isList() && after.isList())
    {
        VisitThreeLists({.list = root,
                         .base = m_document.base->getList(),
                         .before = m_document.before->getList(),
                         .after = m_document.after->getList(),
                         .storedBefore = before.getList().data(),
                         .storedAfter = after.getList().data()});
    }
    else
    {
        VisitThree(m_document);
    }
    VisitPending();
    return std::move(m_changes);
}

void DiffWalk::AddConflict(Path path, const PropertyTree* base, const PropertyTree* ours, const PropertyTree* theirs)
{
    m_conflicts->push_back({std::move(path), CopyOf(base), CopyOf(ours), CopyOf(theirs)});
}

// Whether the value stays as it is before: since it is the same after, since only that has changed, or with a conflict.
bool DiffWalk::IsOurs(const Value& value)
{
    const auto areSame = [&value](const PropertyTree* a, const PropertyTree* b)
    { return a && b && IsUnordered(value.schema) ? AreSameUnordered(*a, *b) : AreSameOrMissing(a, b); };
    if (areSame(value.before, value.after) || areSame(value.base, value.after))
    {
        return true;
    }
    if (areSame(value.base, value.before))
    {
        return false;
    }
    AddConflict(PathOf(*value.place), value.base, value.before, value.after);
    return true;
}

void DiffWalk::VisitThree(const Value& value)
{
    const auto areAll = [&value](bool (PropertyTree::*isIt)() const)
    {
        return value.base && value.before && value.after && (value.base->*isIt)() && (value.before->*isIt)() &&
               (value.after->*isIt)();
    };
    const ValueKind kind = value.schema ? value.schema->kind : ValueKind::Other;
    const bool areMaps = areAll(&PropertyTree::isMap);
    if (areMaps && (kind == ValueKind::Record || (kind == ValueKind::Effect && HaveSameName(*value.base, *value.before) &&
                                                  HaveSameName(*value.before, *value.after))))
    {
        VisitMap(value);
    }
    else if (kind == ValueKind::List && areAll(&PropertyTree::isList))
    {
        VisitThreeLists(ElementsOf(value));
    }
    else if (!IsOurs(value))
    {
        AddValue(value);
    }
}

void DiffWalk::VisitThreeLists(ListRest rest)
{
    if (rest.AreEffects())
    {
        const Entries entries = MergedEntries(rest);
        VisitEntries(std::move(rest), entries);
        return;
    }
    if ((rest.base.size() == rest.before.size() && rest.base.size() == rest.after.size()) || !IsOurs(rest.list))
    {
        const Entries entries = EntriesOf(rest);
        VisitEntries(std::move(rest), entries);
    }
}

// What stands in the merged list: what neither side has taken out in the order of the one that has changed it, and behind each
// of these what ours has put there, then theirs.
DiffWalk::Entries DiffWalk::MergedEntries(const ListRest& rest)
{
    const auto isSame = [this](const PropertyTree& a, const PropertyTree& b)
    { return m_prints.Of(a) == m_prints.Of(b) && AreSame(a, b); };
    const std::vector<std::size_t> oursInBase = ListAlignment(rest.base, rest.before, true, m_prints).Origins();
    const std::vector<std::size_t> theirsInBase = ListAlignment(rest.base, rest.after, true, m_prints).Origins();
    const std::vector<std::size_t> ours = Inverted(oursInBase, rest.base.size());
    const std::vector<std::size_t> theirs = Inverted(theirsInBase, rest.base.size());

    // Both orders of what both sides have.
    std::vector<std::size_t> oursOrder;
    std::vector<std::size_t> theirsOrder;
    std::ranges::copy_if(oursInBase, std::back_inserter(oursOrder),
                         [&](std::size_t base) { return base != NONE && theirs[base] != NONE; });
    std::ranges::copy_if(theirsInBase, std::back_inserter(theirsOrder),
                         [&](std::size_t base) { return base != NONE && ours[base] != NONE; });
    const bool isByTheirs = Ascends(oursOrder) && !Ascends(theirsOrder);
    if (!isByTheirs && !Ascends(theirsOrder) && oursOrder != theirsOrder)
    {
        const Value& list = rest.list.before ? rest.list : m_document;
        AddConflict(PathOf(*list.place), list.base, list.before, list.after);
    }

    // What stands behind each element of the base that is left; the first group is at the beginning.
    std::vector<Entries> groups(rest.base.size() + 1);
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> inserted; // by ours, by their content
    std::size_t group = 0;
    for (std::size_t index = 0; index != rest.before.size(); ++index)
    {
        const std::size_t base = oursInBase[index];
        if (base != NONE && theirs[base] != NONE)
        {
            group = base + 1;
        }
        else if (base == NONE)
        {
            inserted[m_prints.Of(rest.before[index])].push_back(index);
            groups[group].push_back({.before = index, .after = NONE, .base = NONE});
        }
        else if (!isSame(rest.base[base], rest.before[index])) // which theirs has taken out
        {
            groups[group].push_back({.before = index, .after = NONE, .base = base});
        }
    }
    group = 0;
    for (std::size_t index = 0; index != rest.after.size(); ++index)
    {
        const std::size_t base = theirsInBase[index];
        if (base != NONE && ours[base] != NONE)
        {
            group = base + 1;
        }
        else if (base != NONE)
        {
            if (!isSame(rest.base[base], rest.after[index])) // which ours has taken out
            {
                AddConflict(PathOf(*rest.list.place), &rest.base[base], nullptr, &rest.after[index]);
            }
        }
        else if (auto& alike = inserted[m_prints.Of(rest.after[index])]; !alike.empty())
        {
            alike.pop_back(); // the same stands there already
        }
        else
        {
            groups[group].push_back({.before = NONE, .after = index, .base = NONE});
        }
    }
    Entries entries = groups.front();
    for (const std::size_t base : isByTheirs ? theirsOrder : oursOrder)
    {
        entries.push_back({.before = ours[base], .after = theirs[base], .base = base});
        entries.insert(entries.end(), groups[base + 1].begin(), groups[base + 1].end());
    }
    for (std::size_t index = 0; index != entries.size(); ++index)
    {
        if (const auto& [before, after, base] = entries[index]; base != NONE && after == NONE)
        {
            const Place place{.parent = rest.list.place, .key = {}, .index = rest.offset + index};
            AddConflict(PathOf(place), &rest.base[base], &rest.before[before], nullptr);
        }
    }
    return entries;
}

MergeResult Merge(const PropertyTree& base, const PropertyTree& ours, const PropertyTree& theirs)
{
    MergeResult result;
    const ChangeList changes = DiffWalk().Run(base, ours, theirs, result.conflicts);
    result.merged = ours;
    Apply(changes, result.merged);
    return result;
}

} // namespace Ombrel::Inspection
