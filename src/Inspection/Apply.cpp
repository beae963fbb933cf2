#include "Inspection/Changes.h"

#include "Inspection/Forms.h"
#include "Inspection/TreeSteps.h"
#include "Inspection/Values.h"
#include "Proc/EffectSettings/EffectSettings.h"

#include <algorithm>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using EffectPtr = std::shared_ptr<PhotoCore::IEffectSettings>;
using PhotoCore::EffectSettings;

std::optional<PropertyTree> CopyAt(const PropertyTree& tree, Steps steps)
{
    const PropertyTree* value = Find(tree, steps);
    return value ? std::optional(*value) : std::nullopt;
}

bool IsThere(const PropertyTree* found, const std::optional<PropertyTree>& expected)
{
    return found && expected ? AreSame(*found, *expected) : !found && !expected;
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
        return *m_stored;
    }

    const PropertyTree& Full()
    {
        if (!m_full)
        {
            m_full = Freeze(Stored());
        }
        return *m_full;
    }

    /// Whether this is the given effect, which may be stored otherwise.
    bool Is(const PropertyTree& effect) { return AreSame(Stored(), effect) || AreSame(Full(), Freeze(effect)); }

    void Change(const Inspection::Change& change, Steps steps, Steps storedSteps);

    /// The effect, which is read anew if it has changed.
    EffectPtr TakeEffect()
    {
        if (m_isChanged || (!m_effect && m_stored))
        {
            EffectSettings::DeserializePtr(*m_stored, m_effect);
        }
        return std::move(m_effect);
    }

    PropertyTree TakeTree() { return std::move(*m_stored); }

private:
    static void Require(const Inspection::Change& change, const PropertyTree* found);
    void Store(const Inspection::Change& change, Steps steps, Steps storedSteps);

    EffectPtr m_effect;
    std::optional<PropertyTree> m_stored;
    std::optional<PropertyTree> m_full;
    bool m_isChanged = false;
};

// The full value that a change is made from must be there.
void Element::Require(const Inspection::Change& change, const PropertyTree* found)
{
    const std::optional<PropertyTree>& expected = change.before;
    const bool isIt = change.isUnordered && found && expected ? AreSameUnordered(*found, *expected) : IsThere(found, expected);
    if (!isIt)
    {
        throw ConflictError(change.path, expected, found ? std::optional(*found) : std::nullopt);
    }
}

void Element::Change(const Inspection::Change& change, Steps steps, Steps storedSteps)
{
    Full();
    if (change.kind != ChangeKind::Insert)
    {
        Require(change, Find(*m_full, steps));
    }
    if (!Execute(*m_full, steps, change, change.after))
    {
        throw ConflictError(change.path, change.before, CopyAt(*m_full, steps));
    }
    Store(change, steps, storedSteps);
    m_isChanged = true;
}

// Where the file holds what it held when the change was found, it then holds what it did after. Elsewhere it gets the value, or
// all that it lacks around it.
void Element::Store(const Inspection::Change& change, Steps steps, Steps storedSteps)
{
    const bool isPlain = steps.size() == storedSteps.size();
    if ((change.kind == ChangeKind::Value || !isPlain) && IsThere(Find(*m_stored, storedSteps), change.stored.before) &&
        Put(*m_stored, storedSteps, change.stored.after))
    {
        return;
    }
    for (std::size_t count = 1; count <= steps.size(); ++count)
    {
        const bool isLast = count == steps.size();
        if (!Find(*m_stored, steps.first(count)) && !(isLast && change.kind != ChangeKind::Value))
        {
            Put(*m_stored, steps.first(count), CopyAt(*m_full, steps.first(count)));
            return;
        }
    }
    const std::optional<PropertyTree>& stored = isPlain && change.stored.after ? change.stored.after : change.after;
    Execute(*m_stored, steps, change, change.kind == ChangeKind::Insert ? stored : change.after);
}

// The elements of a document, which is a list or one effect.
class Changing
{
public:
    explicit Changing(const PropertyTree& tree) { Reset(tree); }

    explicit Changing(const std::vector<EffectPtr>& effects) : m_isList(true)
    {
        for (const EffectPtr& effect : effects)
        {
            m_elements.emplace_back(effect);
        }
    }

    void Apply(const Change& change)
    {
        const std::vector<PathStep> all = change.path.Steps();
        const std::vector<PathStep> stored = change.stored.path.Steps();
        if (all.empty())
        {
            ReplaceAll(change);
        }
        else if (!m_isList)
        {
            m_elements.front().Change(change, all, stored);
        }
        else if (all.size() == 1)
        {
            ChangeList(change, all.front());
        }
        else
        {
            const std::size_t* index = std::get_if<std::size_t>(&all.front());
            if (!index || *index >= m_elements.size() || stored.empty())
            {
                throw ConflictError(change.path, change.before, std::nullopt);
            }
            m_elements[*index].Change(change, Steps(all).subspan(1), Steps(stored).subspan(1));
        }
    }

    PropertyTree TakeTree()
    {
        if (!m_isList)
        {
            return m_elements.front().TakeTree();
        }
        PropertyTree tree;
        PropertyTree::List& list = tree.makeList(m_elements.size());
        for (Element& element : m_elements)
        {
            list.push_back(element.TakeTree());
        }
        return tree;
    }

    std::vector<EffectPtr> TakeEffects()
    {
        std::vector<EffectPtr> effects;
        std::ranges::transform(m_elements, std::back_inserter(effects), &Element::TakeEffect);
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
    }

    // One document in place of another.
    void ReplaceAll(const Change& change)
    {
        PropertyTree now;
        if (m_isList)
        {
            PropertyTree::List& list = now.makeList(m_elements.size());
            for (Element& element : m_elements)
            {
                list.push_back(element.Stored());
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
        const bool isInsert = change.kind == ChangeKind::Insert;
        const std::size_t size = m_elements.size();
        const std::optional<PropertyTree>& after = change.stored.after ? change.stored.after : change.after;
        if (!index || *index >= size + (isInsert ? 1 : 0) || (change.kind == ChangeKind::Move && change.target >= size))
        {
            throw ConflictError(change.path, change.before, std::nullopt);
        }
        const auto at = [this](std::size_t place) { return m_elements.begin() + static_cast<std::ptrdiff_t>(place); };
        if (isInsert)
        {
            m_elements.emplace(at(*index), after ? *after : PropertyTree());
            return;
        }
        if (!change.before || !m_elements[*index].Is(*change.before))
        {
            throw ConflictError(change.path, change.before, m_elements[*index].Stored());
        }
        if (change.kind == ChangeKind::Remove)
        {
            m_elements.erase(at(*index));
        }
        else if (change.kind == ChangeKind::Value)
        {
            m_elements[*index] = Element(after ? *after : PropertyTree());
        }
        else if (*index < change.target)
        {
            std::rotate(at(*index), at(*index + 1), at(change.target + 1));
        }
        else
        {
            std::rotate(at(change.target), at(*index), at(*index + 1));
        }
    }

    std::vector<Element> m_elements;
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
