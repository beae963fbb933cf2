#include "Inspection/ElementOrder.h"

#include <algorithm>
#include <numeric>

namespace Ombrel::Inspection
{
namespace
{

constexpr std::size_t LONGEST_BLOCK = 1024;

} // namespace

ElementOrder::ElementOrder(std::size_t size) : m_blocks(1), m_size(size)
{
    for (std::size_t first = 0; first < size; first += LONGEST_BLOCK / 2)
    {
        std::vector<std::size_t>& block = first == 0 ? m_blocks.front() : m_blocks.emplace_back();
        block.reserve(LONGEST_BLOCK);
        block.resize(std::min(LONGEST_BLOCK / 2, size - first));
        std::iota(block.begin(), block.end(), first);
    }
}

// The block of a place and the place in it. What is put in behind the last element of a block goes into that block.
std::pair<std::size_t, std::size_t> ElementOrder::Locate(std::size_t place) const
{
    std::size_t block = 0;
    while (place >= m_blocks[block].size() && block + 1 != m_blocks.size())
    {
        place -= m_blocks[block++].size();
    }
    return {block, place};
}

std::size_t ElementOrder::At(std::size_t place) const
{
    const auto [block, index] = Locate(place);
    return m_blocks[block][index];
}

void ElementOrder::Insert(std::size_t place, std::size_t element)
{
    const auto [number, index] = Locate(place);
    std::vector<std::size_t>& block = m_blocks[number];
    block.insert(block.begin() + static_cast<std::ptrdiff_t>(index), element);
    ++m_size;
    if (block.size() == LONGEST_BLOCK)
    {
        const auto middle = block.begin() + LONGEST_BLOCK / 2;
        std::vector<std::size_t> rest(middle, block.end());
        block.erase(middle, block.end());
        m_blocks.insert(m_blocks.begin() + static_cast<std::ptrdiff_t>(number) + 1, std::move(rest));
    }
}

std::size_t ElementOrder::Remove(std::size_t place)
{
    const auto [number, index] = Locate(place);
    std::vector<std::size_t>& block = m_blocks[number];
    const std::size_t element = block[index];
    block.erase(block.begin() + static_cast<std::ptrdiff_t>(index));
    --m_size;
    if (block.empty() && m_blocks.size() != 1)
    {
        m_blocks.erase(m_blocks.begin() + static_cast<std::ptrdiff_t>(number));
    }
    return element;
}

std::vector<std::size_t> ElementOrder::All() const
{
    std::vector<std::size_t> all;
    all.reserve(m_size);
    for (const std::vector<std::size_t>& block : m_blocks)
    {
        all.insert(all.end(), block.begin(), block.end());
    }
    return all;
}

} // namespace Ombrel::Inspection
