#include "Inspection/Finding.h"

#include "Inspection/SharedPaths.h"
#include "Inspection/TreeSteps.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

// The places that paths lead to, as a tree of their own. The steps that paths share are followed once.
class Places
{
public:
    explicit Places(PropertyTree& root) { m_places.push_back({.value = &root}); }

    std::size_t At(const Path& path, std::size_t without);

    /// Gives the place another value, unless nothing is there.
    void Replace(std::size_t place, const PropertyTree& value);

    void MarkRemoved(std::size_t place) { m_places[place].isRemoved = true; }

    /// Takes out what is marked.
    void Remove();

private:
    struct Place
    {
        PropertyTree* value = nullptr; // null if it is not there
        std::size_t depth = 0;
        bool isRemoved = false;
        bool hasBelow = false; // other places
    };

    // In the order of the steps below each parent.
    using Steps = std::map<std::pair<std::size_t, PathStep>, std::size_t>;

    std::size_t Below(std::size_t parent, const PathStep& step);
    void FindAgain(std::size_t parent);
    void RemoveBelow(std::size_t parent);
    std::pair<Steps::const_iterator, Steps::const_iterator> StepsBelow(std::size_t parent) const;

    std::vector<Place> m_places; // the root is the first
    Steps m_steps;
    SharedPaths<std::size_t> m_starts;
};

std::size_t Places::Below(std::size_t parent, const PathStep& step)
{
    const auto [found, isNew] = m_steps.try_emplace({parent, step}, m_places.size());
    if (isNew)
    {
        Place& above = m_places[parent];
        above.hasBelow = true;
        m_places.push_back({.value = ChildAt(above.value, step), .depth = above.depth + 1});
    }
    return found->second;
}

/// @param without how many steps at the end are left out
std::size_t Places::At(const Path& path, std::size_t without)
{
    if (path.OwnSteps().size() < without)
    {
        return path.Start() ? At(Path(path.Steps()), without) : 0;
    }
    const auto follow = [this](std::size_t from, const Path& part)
    {
        for (const PathStep& step : part.OwnSteps())
        {
            from = Below(from, step);
        }
        return from;
    };
    std::size_t place = m_starts.Find(path.Start(), 0, follow);
    for (std::size_t index = 0; index + without < path.OwnSteps().size(); ++index)
    {
        place = Below(place, path.OwnSteps()[index]);
    }
    return place;
}

void Places::Replace(std::size_t place, const PropertyTree& value)
{
    if (m_places[place].value)
    {
        *m_places[place].value = value;
        FindAgain(place);
    }
}

// What stands below a value that was replaced.
void Places::FindAgain(std::size_t parent)
{
    std::vector<std::size_t> pending;
    if (m_places[parent].hasBelow)
    {
        pending.push_back(parent);
    }
    while (!pending.empty())
    {
        const std::size_t place = pending.back();
        pending.pop_back();
        const auto [begin, end] = StepsBelow(place);
        for (auto step = begin; step != end; ++step)
        {
            m_places[step->second].value = ChildAt(m_places[place].value, step->first.second);
            pending.push_back(step->second);
        }
    }
}

std::pair<Places::Steps::const_iterator, Places::Steps::const_iterator> Places::StepsBelow(std::size_t parent) const
{
    return {m_steps.lower_bound({parent, PathStep(std::string())}), m_steps.lower_bound({parent + 1, PathStep(std::string())})};
}

// The innermost first: what goes takes what is below it along, and the elements behind it move.
void Places::Remove()
{
    std::vector<std::pair<std::size_t, std::size_t>> parents; // the depth, and the place
    for (const auto& [step, place] : m_steps)
    {
        const std::size_t parent = step.first;
        if (m_places[place].isRemoved && m_places[place].value && (parents.empty() || parents.back().second != parent))
        {
            parents.emplace_back(m_places[parent].depth, parent);
        }
    }
    std::ranges::sort(parents, std::greater());
    for (const auto& [depth, parent] : parents)
    {
        RemoveBelow(parent);
    }
}

void Places::RemoveBelow(std::size_t parent)
{
    PropertyTree& value = *m_places[parent].value;
    const auto [begin, end] = StepsBelow(parent);
    if (value.isMap())
    {
        for (auto step = begin; step != end; ++step)
        {
            if (m_places[step->second].isRemoved && m_places[step->second].value)
            {
                value.getMap().erase(std::get<std::string>(step->first.second));
            }
        }
        return;
    }
    PropertyTree::List& list = value.getList();
    std::size_t kept = 0; // how many elements stay of those before `index`
    std::size_t index = 0;
    const auto keepUpTo = [&](std::size_t limit)
    {
        for (; index != limit; ++index, ++kept)
        {
            if (kept != index)
            {
                list[kept] = std::move(list[index]);
            }
        }
    };
    for (auto step = begin; step != end; ++step)
    {
        if (m_places[step->second].isRemoved && m_places[step->second].value)
        {
            keepUpTo(std::get<std::size_t>(step->first.second));
            ++index;
        }
    }
    keepUpTo(list.size());
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(kept), list.end());
}

} // namespace

// First what is replaced, then what goes, so that the paths of the others still hold.
PropertyTree Mended(PropertyTree tree, std::span<const Finding> findings)
{
    Places places(tree);
    for (const Finding& finding : findings)
    {
        if (finding.mend == Mend::Replace)
        {
            places.Replace(places.At(finding.path, 0), finding.becomes);
        }
        else if (finding.mend != Mend::None)
        {
            const std::size_t parts = finding.mend == Mend::RemoveElement ? 1 : 0; // of the element, below it
            places.MarkRemoved(places.At(finding.path, parts));                    // the root stays
        }
    }
    places.Remove();
    return tree;
}

} // namespace Ombrel::Inspection
