#include "Inspection/Changes.h"

#include "Inspection/ElementOrder.h"
#include "Inspection/Forms.h"
#include "Inspection/TreeEditor.h"
#include "Inspection/Values.h"
#include "Proc/EffectSettings/EffectSettings.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <memory>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using EffectPtr = std::shared_ptr<PhotoCore::IEffectSettings>;
using PhotoCore::EffectSettings;

// Where a path ends: the path that it begins with, or null, and the steps behind that, of which there is one if the path has
// any.
struct Way
{
    explicit Way(const Path& path)
    {
        const Path* part = &path;
        while (part->OwnSteps().empty() && part->Start())
        {
            part = part->Start().get();
        }
        start = part->Start().get();
        steps = part->OwnSteps();
    }

    const Path* start;
    Steps steps;
};

// The parts of a path that others may share, the outermost first.
std::vector<const Path*> StartsOf(const Way& way)
{
    std::vector<const Path*> starts;
    for (const Path* start = way.start; start; start = start->Start().get())
    {
        starts.push_back(start);
    }
    std::ranges::reverse(starts);
    return starts;
}

// One effect of the document, as it is stored and, once it is asked for, with every key.
class Element
{
public:
    explicit Element(PropertyTree stored) : m_stored(std::move(stored)) {}
    explicit Element(EffectPtr effect) : m_effect(std::move(effect)) {}

    const PropertyTree& Stored()
    {
        if (!m_stored)
        {
            EffectSettings::SerializePtr(m_stored.emplace(), m_effect);
        }
        Close();
        return *m_stored;
    }

    const PropertyTree& Full()
    {
        MakeFull();
        Close();
        return *m_full;
    }

    /// Whether this is the given effect, which may be stored otherwise.
    bool Is(const PropertyTree& effect) { return AreSame(Stored(), effect) || AreSame(Full(), Freeze(effect)); }

    /// @param skipped how many steps of the paths lead to the effect
    void Change(const Inspection::Change& change, std::size_t skipped);

    /// The effect, which is read anew if it has changed.
    EffectPtr TakeEffect()
    {
        if (m_isChanged || (!m_effect && m_stored))
        {
            Close();
            EffectSettings::DeserializePtr(*m_stored, m_effect);
        }
        return std::move(m_effect);
    }

    PropertyTree TakeTree()
    {
        Close();
        return std::move(*m_stored);
    }

private:
    // A place in both trees; null in the stored one if that lacks it.
    struct Both
    {
        const Path* start = nullptr;
        PropertyTree* full = nullptr;
        PropertyTree* stored = nullptr;
    };

    void MakeFull()
    {
        if (!m_full)
        {
            m_full = Freeze(Stored());
        }
    }

    // After it, no value stays where it was.
    void Close()
    {
        if (m_full)
        {
            m_fullEditor.Close(*m_full);
        }
        m_storedEditor.Close(*m_stored);
        m_way.clear();
    }

    void Require(const Inspection::Change& change, const PropertyTree* found);
    Both Follow(const Way& way, std::size_t skipped);
    void Store(const Inspection::Change& change, const Both& start, Steps steps, std::size_t skipped);
    void StoreBelow(const Inspection::Change& change, PropertyTree& from, PropertyTree& fullFrom, Steps steps, bool isPlain);

    EffectPtr m_effect;
    std::optional<PropertyTree> m_stored;
    std::optional<PropertyTree> m_full;
    TreeEditor m_storedEditor;
    TreeEditor m_fullEditor;
    std::vector<Both> m_way; // to the last change: its effect and those around it, which stay where they are
    bool m_isChanged = false;
};

// The full value that a change is made from must be there.
void Element::Require(const Inspection::Change& change, const PropertyTree* found)
{
    PropertyTree copy;
    found = found ? &m_fullEditor.Plain(*found, copy) : nullptr;
    const std::optional<PropertyTree>& expected = change.before;
    const bool isIt = change.isUnordered && found && expected ? AreSameUnordered(*found, *expected)
                                                              : AreSameOrMissing(found, PointerTo(expected));
    if (!isIt)
    {
        throw ConflictError(change.path, expected, CopyOf(found));
    }
}

// Changes of one effect come one after the other, so what leads to it is followed once.
Element::Both Element::Follow(const Way& way, std::size_t skipped)
{
    const std::vector<const Path*> starts = StartsOf(way);
    std::size_t common = 0;
    while (common != starts.size() && common != m_way.size() && m_way[common].start == starts[common])
    {
        ++common;
    }
    m_way.resize(common);
    Both at{.start = nullptr, .full = &*m_full, .stored = &*m_stored};
    if (!m_way.empty())
    {
        at = m_way.back();
    }
    for (std::size_t index = common; index != starts.size(); ++index)
    {
        const Steps steps = Steps(starts[index]->OwnSteps()).subspan(index == 0 ? skipped : 0);
        at = {.start = starts[index],
              .full = at.full ? m_fullEditor.Find(*at.full, steps) : nullptr,
              .stored = at.stored ? m_storedEditor.Find(*at.stored, steps) : nullptr};
        m_way.push_back(at);
    }
    return at;
}

void Element::Change(const Inspection::Change& change, std::size_t skipped)
{
    MakeFull();
    const Way way(change.path);
    const Both start = Follow(way, skipped);
    const Steps steps = way.steps.subspan(way.start ? 0 : skipped);
    if (!start.full)
    {
        throw ConflictError(change.path, change.before, std::nullopt);
    }
    const PropertyTree* found = m_fullEditor.Find(*start.full, steps);
    if (change.kind != ChangeKind::Insert)
    {
        Require(change, found);
    }
    if (!m_fullEditor.Execute(*start.full, steps, change, change.after))
    {
        throw ConflictError(change.path, change.before, std::nullopt);
    }
    Store(change, start, steps, skipped);
    m_isChanged = true;
}

// Where the file holds what it held when the change was found, it then holds what it did after. Elsewhere it gets the value, or
// all that it lacks around it.
void Element::Store(const Inspection::Change& change, const Both& start, Steps steps, std::size_t skipped)
{
    const Way storedWay(change.stored.path);
    const bool hasSameStart = storedWay.start == start.start;
    const bool isPlain = hasSameStart && storedWay.steps.size() == steps.size() + (start.start ? 0 : skipped);
    if (change.kind == ChangeKind::Value || !isPlain)
    {
        const bool isFromStart = hasSameStart && start.stored;
        const std::vector<PathStep> all = isFromStart ? std::vector<PathStep>() : change.stored.path.Steps();
        PropertyTree& from = isFromStart ? *start.stored : *m_stored;
        const Steps storedSteps = isFromStart ? storedWay.steps.subspan(start.start ? 0 : skipped)
                                              : Steps(all).subspan(std::min(skipped, all.size()));
        PropertyTree copy;
        const PropertyTree* const found = m_storedEditor.Find(from, storedSteps);
        if (AreSameOrMissing(found ? &m_storedEditor.Plain(*found, copy) : nullptr, PointerTo(change.stored.before)) &&
            m_storedEditor.Put(from, storedSteps, change.stored.after))
        {
            if (!isFromStart)
            {
                m_way.clear(); // what is around the place may be another now
            }
            return;
        }
    }
    if (start.stored)
    {
        StoreBelow(change, *start.stored, *start.full, steps, isPlain);
        return;
    }
    const std::vector<PathStep> all = change.path.Steps();
    StoreBelow(change, *m_stored, *m_full, Steps(all).subspan(skipped), isPlain);
    m_way.clear();
}

// What is missing on the way comes from the full form.
void Element::StoreBelow(const Inspection::Change& change, PropertyTree& from, PropertyTree& fullFrom, Steps steps,
                         bool isPlain)
{
    const bool isOfList = change.kind != ChangeKind::Value;
    PropertyTree* stored = &from;
    PropertyTree* full = &fullFrom;
    for (const PathStep& step : steps.first(steps.size() - (isOfList ? 1 : 0)))
    {
        full = m_fullEditor.ChildAt(full, step);
        PropertyTree* const child = m_storedEditor.ChildAt(stored, step);
        if (!child)
        {
            PropertyTree copy;
            m_storedEditor.Put(*stored, Steps(&step, 1), CopyOf(full ? &m_fullEditor.Plain(*full, copy) : nullptr));
            return;
        }
        stored = child;
    }
    if (!isOfList)
    {
        m_storedEditor.Put(from, steps, change.after);
        return;
    }
    const bool isFound = isPlain && change.kind == ChangeKind::Insert && change.stored.after;
    m_storedEditor.Execute(*stored, steps.last(1), change, isFound ? change.stored.after : change.after);
}

// The elements of a document, which is a list or one effect.
class Changing
{
public:
    explicit Changing(const PropertyTree& tree) : m_order(0) { Reset(tree); }

    explicit Changing(const std::vector<EffectPtr>& effects) : m_order(effects.size()), m_isList(true)
    {
        for (const EffectPtr& effect : effects)
        {
            m_elements.emplace_back(effect);
        }
    }

    void Apply(const Change& change)
    {
        const Way way(change.path);
        const std::vector<const Path*> starts = StartsOf(way);
        const Steps first = starts.empty() ? way.steps : Steps(starts.front()->OwnSteps());
        if (first.empty() && starts.empty())
        {
            ReplaceAll(change);
        }
        else if (first.empty())
        {
            Inspection::Change flat = change; // of a path that begins with one that leads nowhere
            flat.path = Path(change.path.Steps());
            flat.stored.path = Path(change.stored.path.Steps());
            Apply(flat);
        }
        else if (!m_isList)
        {
            m_elements.front().Change(change, 0);
        }
        else if (starts.empty() && way.steps.size() == 1)
        {
            ChangeList(change, way.steps.front());
        }
        else
        {
            const std::size_t* index = std::get_if<std::size_t>(&first.front());
            if (!index || *index >= m_order.Size())
            {
                throw ConflictError(change.path, change.before, std::nullopt);
            }
            m_elements[m_order.At(*index)].Change(change, 1);
        }
    }

    PropertyTree TakeTree()
    {
        if (!m_isList)
        {
            return m_elements.front().TakeTree();
        }
        PropertyTree tree;
        PropertyTree::List& list = tree.makeList(m_order.Size());
        for (const std::size_t element : m_order.All())
        {
            list.push_back(m_elements[element].TakeTree());
        }
        return tree;
    }

    std::vector<EffectPtr> TakeEffects()
    {
        std::vector<EffectPtr> effects;
        std::ranges::transform(m_order.All(), std::back_inserter(effects),
                               [this](std::size_t element) { return m_elements[element].TakeEffect(); });
        return effects;
    }

private:
    void Reset(const PropertyTree& tree)
    {
        m_elements.clear();
        m_isList = tree.isList();
        for (const PropertyTree& element : m_isList ? std::span<const PropertyTree>(tree.getList()) : std::span(&tree, 1))
        {
            m_elements.emplace_back(element);
        }
        m_order = ElementOrder(m_elements.size());
    }

    // One document in place of another.
    void ReplaceAll(const Change& change)
    {
        PropertyTree now;
        if (m_isList)
        {
            PropertyTree::List& list = now.makeList(m_order.Size());
            for (const std::size_t element : m_order.All())
            {
                list.push_back(m_elements[element].Stored());
            }
        }
        else
        {
            now = m_elements.front().Stored();
        }
        const std::optional<PropertyTree>& before = change.before;
        const std::optional<PropertyTree>& after = change.stored.after ? change.stored.after : change.after;
        if (change.kind != ChangeKind::Value || !before || !after ||
            !(AreSame(now, *before) || AreSame(Freeze(now), Freeze(*before))))
        {
            throw ConflictError(change.path, before, std::move(now));
        }
        Reset(*after);
    }

    void ChangeList(const Change& change, const PathStep& step)
    {
        const std::size_t* index = std::get_if<std::size_t>(&step);
        const std::optional<PropertyTree>& after = change.stored.after ? change.stored.after : change.after;
        if (!index || !HasPlaces(change, *index, m_order.Size()))
        {
            throw ConflictError(change.path, change.before, std::nullopt);
        }
        if (change.kind == ChangeKind::Insert)
        {
            m_elements.emplace_back(after ? *after : PropertyTree());
            m_order.Insert(*index, m_elements.size() - 1);
            return;
        }
        Element& element = m_elements[m_order.At(*index)];
        if (!change.before || !element.Is(*change.before))
        {
            throw ConflictError(change.path, change.before, element.Stored());
        }
        if (change.kind == ChangeKind::Remove)
        {
            m_order.Remove(*index);
        }
        else if (change.kind == ChangeKind::Value)
        {
            element = Element(after ? *after : PropertyTree());
        }
        else
        {
            m_order.Insert(change.target, m_order.Remove(*index));
        }
    }

    std::deque<Element> m_elements; // in the order in which they came
    ElementOrder m_order;
    bool m_isList = false;
};

} // namespace

void Apply(std::span<const Change> changes, PropertyTree& effectOrList)
{
    Changing changing(effectOrList);
    std::ranges::for_each(changes, [&changing](const Change& change) { changing.Apply(change); });
    effectOrList = changing.TakeTree();
}

void Apply(std::span<const Change> changes, std::vector<EffectPtr>& effects)
{
    Changing changing(effects);
    std::ranges::for_each(changes, [&changing](const Change& change) { changing.Apply(change); });
    effects = changing.TakeEffects();
}

} // namespace Ombrel::Inspection
