#ifndef OMBREL_INSPECTION_LIST_MOVES_H
#define OMBREL_INSPECTION_LIST_MOVES_H

#include <cstddef>
#include <span>
#include <vector>

namespace Ombrel::Inspection
{

/// One element that goes to another place. Both indices are those at the time of the move, `to` without the element.
struct ListMove
{
    std::size_t element; // by its place in the order that is reached
    std::size_t from;
    std::size_t to;
};

/// The fewest moves, one after the other, that bring the elements 0 to n - 1 into an order. In time n log n.
/// @param order each of these numbers once
std::vector<ListMove> MovesTo(std::span<const std::size_t> order);

} // namespace Ombrel::Inspection

#endif
