#ifndef OMBREL_INSPECTION_DIFF_WALK_H
#define OMBREL_INSPECTION_DIFF_WALK_H

#include "Inspection/Changes.h"
#include "Inspection/CheckContext.h"
#include "Inspection/Fingerprints.h"
#include "Inspection/Merge.h"
#include "Inspection/Place.h"
#include "Inspection/RefusedEffects.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <deque>
#include <span>
#include <string_view>
#include <vector>

namespace Ombrel::Inspection
{

// Compares two documents. Parts wait on a stack, so that nesting costs no stack of the thread; they come off it in the order of
// the keys. First comes what a list has more or less, then what differs within its elements, which by then have their new
// indices.
//
// With a base, from which both come, only those changes are found that were made after it and not before it too.
class DiffWalk
{
public:
    ChangeList Run(const PropertyTree& before, const PropertyTree& after);

    /// @param conflicts gets what both have changed
    ChangeList Run(const PropertyTree& base, const PropertyTree& before, const PropertyTree& after,
                   std::vector<MergeConflict>& conflicts);

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
        const PropertyTree* base = nullptr;
        const Proc::ValueSchema* schema = nullptr; // null where nothing is known of it
        const Place* place = nullptr;
        Absent* absent = nullptr;        // around it
        bool isStoredAroundAfter = true; // whether a key that is not stored after has the default beside its neighbours
    };

    // The elements of a list that are left to be compared.
    struct ListRest
    {
        Value list;
        std::size_t offset = 0; // of the first of them in the list
        std::span<const PropertyTree> base;
        std::span<const PropertyTree> before;
        std::span<const PropertyTree> after;
        const PropertyTree* storedBefore = nullptr; // the first of them, or null
        const PropertyTree* storedAfter = nullptr;
        const Proc::ValueSchema* element = &EFFECT_VALUE;
        Absent* absent = nullptr; // around them

        bool AreEffects() const { return element->kind == Proc::ValueKind::Effect; }
    };

    // What stands in a list in the end: the indices before, after and in the base of one element, or `NONE`.
    struct Entry
    {
        std::size_t before;
        std::size_t after;
        std::size_t base;
    };
    using Entries = std::vector<Entry>;

    static constexpr std::size_t NONE = static_cast<std::size_t>(-1);

    void Visit(const Value& value);
    void VisitMap(const Value& value);
    void VisitKey(const Value& map, Absent* absent, std::string_view key, const PropertyTree* before,
                  const PropertyTree* after);
    static ListRest ElementsOf(const Value& list);
    void VisitElements(const ListRest& rest);
    void VisitEntries(ListRest rest, const Entries& entries);
    void VisitPending();
    Entries EntriesOf(const ListRest& rest);
    void AddStructure(const ListRest& rest, const Entries& entries);

    // Where there is a base.
    bool IsOurs(const Value& value);
    void VisitThree(const Value& value);
    void VisitThreeLists(ListRest rest);
    Entries MergedEntries(const ListRest& rest);
    void AddConflict(Path path, const PropertyTree* base, const PropertyTree* ours, const PropertyTree* theirs);

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
    std::vector<MergeConflict>* m_conflicts = nullptr; // null without a base
    Value m_document;                                  // which has a base
};

} // namespace Ombrel::Inspection

#endif
