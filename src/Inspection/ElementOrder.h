#ifndef OMBREL_INSPECTION_ELEMENT_ORDER_H
#define OMBREL_INSPECTION_ELEMENT_ORDER_H

#include <cstddef>
#include <utility>
#include <vector>

namespace Ombrel::Inspection
{

/// Which element stands at which place of a list, while many are put in, taken out and moved one after the other. A step takes
/// about the root of their number.
class ElementOrder
{
public:
    /// The elements 0 to size - 1 in this order.
    explicit ElementOrder(std::size_t size);

    std::size_t Size() const { return m_size; }

    /// @param place less than the size
    std::size_t At(std::size_t place) const;

    /// @param place at most the size
    void Insert(std::size_t place, std::size_t element);

    /// The element that stood at the place.
    std::size_t Remove(std::size_t place);

    /// The elements in their order.
    std::vector<std::size_t> All() const;

private:
    std::pair<std::size_t, std::size_t> Locate(std::size_t place) const;

    std::vector<std::vector<std::size_t>> m_blocks; // one at least; no other is empty
    std::size_t m_size;
};

} // namespace Ombrel::Inspection

#endif
