#include "TreeDifference.h"

#include "Values.h"

#include <algorithm>
#include <string_view>

namespace Ombrel::EffectsTool
{
namespace
{

struct Pair
{
    const PropertyTree* before;
    const PropertyTree* after;
    std::size_t parent; // in the list of steps
};

/// Compares two trees with a stack of its own, since they may be deep.
class Comparison
{
public:
    std::vector<Difference> Of(const PropertyTree& before, const PropertyTree& after)
    {
        m_pending.push_back({&before, &after, 0});
        while (!m_pending.empty())
        {
            const Pair pair = m_pending.back();
            m_pending.pop_back();
            Compare(pair);
        }
        return std::move(m_found);
    }

private:
    struct Step
    {
        std::size_t parent;                  // one more than its place in the list; 0 for the root
        std::optional<std::string_view> key; // in a list the index
        std::size_t index = 0;
    };

    void Compare(const Pair& pair)
    {
        if (pair.before && pair.after && pair.before->isMap() && pair.after->isMap())
        {
            CompareMaps(pair);
        }
        else if (pair.before && pair.after && pair.before->isList() && pair.after->isList())
        {
            CompareLists(pair);
        }
        else if (!pair.before || !pair.after || !IsStoredAs(*pair.before, *pair.after))
        {
            m_found.push_back({PathOf(pair.parent), pair.before ? std::optional(*pair.before) : std::nullopt,
                               pair.after ? std::optional(*pair.after) : std::nullopt});
        }
    }

    // The stack gives the last one first.
    void CompareMaps(const Pair& pair)
    {
        const std::size_t first = m_pending.size();
        for (const auto& [key, child] : pair.before->getMap())
        {
            const auto other = pair.after->getMap().find(key);
            Push(&child, other == pair.after->getMap().end() ? nullptr : &other->second, {pair.parent, key});
        }
        for (const auto& [key, child] : pair.after->getMap())
        {
            if (!pair.before->contains(key))
            {
                Push(nullptr, &child, {pair.parent, key});
            }
        }
        std::reverse(m_pending.begin() + static_cast<std::ptrdiff_t>(first), m_pending.end());
    }

    void CompareLists(const Pair& pair)
    {
        const PropertyTree::List& before = pair.before->getList();
        const PropertyTree::List& after = pair.after->getList();
        for (std::size_t index = std::max(before.size(), after.size()); index-- != 0;)
        {
            Push(index < before.size() ? &before[index] : nullptr, index < after.size() ? &after[index] : nullptr,
                 {pair.parent, std::nullopt, index});
        }
    }

    void Push(const PropertyTree* before, const PropertyTree* after, const Step& step)
    {
        m_steps.push_back(step);
        m_pending.push_back({before, after, m_steps.size()});
    }

    Path PathOf(std::size_t place) const
    {
        Path path;
        for (; place != 0; place = m_steps[place - 1].parent)
        {
            const Step& step = m_steps[place - 1];
            path.push_back(step.key ? std::string(*step.key) : std::to_string(step.index));
        }
        std::ranges::reverse(path);
        return path;
    }

    std::vector<Pair> m_pending;
    std::vector<Step> m_steps;
    std::vector<Difference> m_found;
};

std::string ShownOrNothing(const std::optional<PropertyTree>& value)
{
    return value ? ShownInBrief(*value) : "nothing";
}

} // namespace

std::vector<Difference> DifferencesOf(const PropertyTree& before, const PropertyTree& after)
{
    return Comparison().Of(before, after);
}

std::string TextOf(const Difference& difference)
{
    return ShownOrNothing(difference.before) + " becomes " + ShownOrNothing(difference.after);
}

} // namespace Ombrel::EffectsTool
