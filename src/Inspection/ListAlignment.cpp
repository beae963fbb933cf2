#include "Inspection/ListAlignment.h"

#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace Ombrel::Inspection
{
namespace
{

// How much speaks for an element of the other list, by its index.
using Votes = std::map<std::size_t, int>;

// What an element has under its keys, and under the keys of the maps there. It counts only together with the kind of the
// element: an equal part of another effect says nothing.
template <class Visit> void ForEachChild(const PropertyTree& tree, std::uint64_t kind, Fingerprints& prints, const Visit& visit)
{
    if (!tree.isMap())
    {
        return;
    }
    for (const auto& [key, child] : tree.getMap())
    {
        const std::uint64_t place = Fingerprints::Joined(kind, Fingerprints::OfText(key));
        visit(Fingerprints::Joined(place, prints.Of(child)));
        if (child.isMap())
        {
            for (const auto& [innerKey, inner] : child.getMap())
            {
                visit(Fingerprints::Joined(Fingerprints::Joined(place, Fingerprints::OfText(innerKey)), prints.Of(inner)));
            }
        }
    }
}

} // namespace

ListAlignment::ListAlignment(std::span<const PropertyTree> before, std::span<const PropertyTree> now, bool areEffects,
                             Fingerprints& prints)
    : m_before(ElementsOf(before, areEffects, prints)), m_now(ElementsOf(now, areEffects, prints)), m_origins(now.size(), NONE),
      m_isFound(before.size()), m_left(now.size())
{
    // First what is the same; then what has something that only one other element has; then what stands behind the same
    // neighbour.
    MatchEnds();
    if (m_left != 0)
    {
        MatchEqual();
        MatchByParts(prints);
        for (const Run& run : Runs())
        {
            MatchRun(run);
        }
    }
}

std::vector<ListAlignment::Element> ListAlignment::ElementsOf(std::span<const PropertyTree> list, bool areEffects,
                                                              Fingerprints& prints)
{
    std::vector<Element> elements;
    elements.reserve(list.size());
    for (const PropertyTree& tree : list)
    {
        const bool hasName = areEffects && tree.contains(Proc::StoredKeys::NAME);
        elements.push_back({&tree, prints.Of(tree), hasName ? prints.Of(tree[Proc::StoredKeys::NAME]) : 0});
    }
    return elements;
}

void ListAlignment::Match(std::size_t now, std::size_t before) noexcept
{
    m_origins[now] = before;
    m_isFound[before] = true;
    --m_left;
}

void ListAlignment::MatchEnds()
{
    const auto areEqual = [](const Element& one, const Element& other) { return one.print == other.print; };
    const std::size_t least = std::min(m_before.size(), m_now.size());
    std::size_t first = 0;
    for (; first != least && areEqual(m_before[first], m_now[first]); ++first)
    {
        Match(first, first);
    }
    for (std::size_t last = 1; last <= least - first; ++last)
    {
        if (!areEqual(m_before[m_before.size() - last], m_now[m_now.size() - last]))
        {
            break;
        }
        Match(m_now.size() - last, m_before.size() - last);
    }
}

void ListAlignment::MatchEqual()
{
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> places; // from behind
    for (std::size_t index = m_before.size(); index-- != 0;)
    {
        if (!m_isFound[index])
        {
            places[m_before[index].print].push_back(index);
        }
    }
    for (std::size_t index = 0; index != m_now.size(); ++index)
    {
        const auto found = m_origins[index] == NONE ? places.find(m_now[index].print) : places.end();
        if (found != places.end() && !found->second.empty())
        {
            Match(index, found->second.back());
            found->second.pop_back();
        }
    }
}

// Where two lists of as many elements stand behind the same neighbour, each in its order may be the other.
std::vector<std::size_t> ListAlignment::Candidates() const
{
    std::vector<std::size_t> candidates(m_now.size(), NONE);
    for (const Run& run : Runs())
    {
        for (std::size_t now = run.now; now != run.nowEnd && run.nowEnd - run.now == run.beforeEnd - run.before; ++now)
        {
            candidates[now] = run.before + (now - run.now);
        }
    }
    return candidates;
}

// The parts of the elements that were not found again.
template <class IsLeft>
ListAlignment::SeenParts ListAlignment::PartsOf(const std::vector<Element>& elements, Fingerprints& prints,
                                                const IsLeft& isLeft)
{
    SeenParts parts;
    for (std::size_t index = 0; index != elements.size(); ++index)
    {
        if (isLeft(index))
        {
            ForEachChild(*elements[index].tree, elements[index].kind, prints,
                         [&](std::uint64_t part)
                         {
                             SeenPart& seen = parts[part];
                             seen.index = index;
                             ++seen.count;
                         });
        }
    }
    return parts;
}

void ListAlignment::MatchByParts(Fingerprints& prints)
{
    if (m_left == 0)
    {
        return;
    }
    SeenParts before = PartsOf(m_before, prints, [this](std::size_t index) { return !m_isFound[index]; });
    SeenParts now = PartsOf(m_now, prints, [this](std::size_t index) { return m_origins[index] == NONE; });
    const std::vector<std::size_t> candidates = Candidates();
    for (std::size_t index = 0; index != m_now.size(); ++index)
    {
        if (m_origins[index] != NONE)
        {
            continue;
        }
        Votes votes;
        ForEachChild(*m_now[index].tree, m_now[index].kind, prints,
                     [&](std::uint64_t part)
                     {
                         const auto found = before.find(part);
                         if (found != before.end() && found->second.count == 1 && now[part].count == 1 &&
                             !m_isFound[found->second.index])
                         {
                             votes[found->second.index] += 2;
                         }
                     });
        if (const auto candidate = votes.find(candidates[index]); candidate != votes.end())
        {
            ++candidate->second; // it wins where another has as many
        }
        const auto best = std::ranges::max_element(votes, {}, &Votes::value_type::second);
        if (best != votes.end())
        {
            Match(index, best->first);
        }
    }
}

std::vector<ListAlignment::Run> ListAlignment::Runs() const
{
    std::vector<Run> runs;
    for (std::size_t index = 0; index != m_now.size() && m_left != 0; ++index)
    {
        if (m_origins[index] != NONE)
        {
            continue;
        }
        Run run{.now = index, .nowEnd = index, .before = index == 0 ? 0 : m_origins[index - 1] + 1, .beforeEnd = 0};
        while (run.nowEnd != m_now.size() && m_origins[run.nowEnd] == NONE)
        {
            ++run.nowEnd;
        }
        run.beforeEnd = run.before;
        while (run.beforeEnd != m_before.size() && !m_isFound[run.beforeEnd])
        {
            ++run.beforeEnd;
        }
        index = run.nowEnd - 1;
        runs.push_back(run);
    }
    return runs;
}

// The elements of a kind in their order.
void ListAlignment::MatchRun(const Run& run)
{
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> places; // from behind
    for (std::size_t index = run.beforeEnd; index-- != run.before;)
    {
        places[m_before[index].kind].push_back(index);
    }
    for (std::size_t index = run.now; index != run.nowEnd; ++index)
    {
        const auto found = places.find(m_now[index].kind);
        if (found != places.end() && !found->second.empty())
        {
            Match(index, found->second.back());
            found->second.pop_back();
        }
    }
}

} // namespace Ombrel::Inspection
