#include "Inspection/ListMoves.h"

#include <algorithm>

namespace Ombrel::Inspection
{
namespace
{

constexpr std::size_t NOTHING = static_cast<std::size_t>(-1);

// Numbers of which those before a place are summed up (a Fenwick tree).
class Sums
{
public:
    explicit Sums(std::size_t size) : m_sums(size + 1) {}

    void Add(std::size_t place, std::size_t number)
    {
        for (std::size_t at = place + 1; at < m_sums.size(); at += at & (~at + 1))
        {
            m_sums[at] += number; // which may be "less than nothing": the numbers wrap
        }
    }

    std::size_t Before(std::size_t place) const
    {
        std::size_t sum = 0;
        for (std::size_t at = place; at != 0; at -= at & (~at + 1))
        {
            sum += m_sums[at];
        }
        return sum;
    }

private:
    std::vector<std::size_t> m_sums;
};

// The longest part of the order that ascends; its elements stay where they are.
std::vector<bool> Staying(std::span<const std::size_t> order)
{
    std::vector<std::size_t> ends; // of the part of each length that ends with the least element
    std::vector<std::size_t> previous(order.size(), NOTHING);
    for (std::size_t index = 0; index != order.size(); ++index)
    {
        const auto end = std::ranges::lower_bound(ends, order[index], {}, [order](std::size_t place) { return order[place]; });
        previous[index] = end == ends.begin() ? NOTHING : *(end - 1);
        if (end == ends.end())
        {
            ends.push_back(index);
        }
        else
        {
            *end = index;
        }
    }
    std::vector<bool> staying(order.size());
    for (std::size_t index = ends.empty() ? NOTHING : ends.back(); index != NOTHING; index = previous[index])
    {
        staying[index] = true;
    }
    return staying;
}

} // namespace

// Each element that moves goes behind the one that is before it in the order, from the front to the back. Where it is and goes
// is counted: elements that stay, elements that still are to move, and those that have moved behind one that stays.
std::vector<ListMove> MovesTo(std::span<const std::size_t> order)
{
    const std::vector<bool> isStaying = Staying(order);
    Sums staying(order.size());
    Sums left(order.size());
    Sums moved(order.size() + 1); // by the element that stays before them, plus one
    for (std::size_t index = 0; index != order.size(); ++index)
    {
        (isStaying[index] ? staying : left).Add(order[index], 1);
    }
    std::vector<ListMove> moves;
    std::size_t behind = 0; // the last that stays, plus one
    for (std::size_t index = 0; index != order.size(); ++index)
    {
        const std::size_t element = order[index];
        if (isStaying[index])
        {
            behind = element + 1;
            continue;
        }
        const std::size_t from = staying.Before(element) + left.Before(element) + moved.Before(element + 1);
        left.Add(element, NOTHING);
        const std::size_t to = staying.Before(behind) + left.Before(behind) + moved.Before(behind + 1);
        moved.Add(behind, 1);
        if (from != to)
        {
            moves.push_back({.element = index, .from = from, .to = to});
        }
    }
    return moves;
}

} // namespace Ombrel::Inspection
