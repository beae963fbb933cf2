#include "Inspection/PackedTree.h"

#include <bit>
#include <cstddef>
#include <string>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

class Unpacker
{
public:
    explicit Unpacker(std::span<const std::uint8_t> packed) : m_packed(packed) {}

    PropertyTree Run()
    {
        while (m_next != m_packed.size())
        {
            PropertyTree part = Part();
            m_parts.push_back(std::move(part));
        }
        return std::move(m_parts.back());
    }

private:
    PropertyTree Part()
    {
        PropertyTree part;
        switch (m_packed[m_next++])
        {
        case 1:
            return PropertyTree(false);
        case 2:
            return PropertyTree(true);
        case 3:
        {
            const std::uint64_t number = Number();
            const auto integer = static_cast<std::int64_t>(number >> 1);
            return PropertyTree((number & 1) != 0 ? -integer - 1 : integer);
        }
        case 4:
        {
            std::uint64_t bits = 0;
            for (int byte = 0; byte != 8; ++byte)
            {
                bits |= static_cast<std::uint64_t>(m_packed[m_next++]) << (8 * byte);
            }
            return PropertyTree(std::bit_cast<double>(bits));
        }
        case 5:
        {
            std::string text(Size(), '\0');
            for (char& character : text)
            {
                character = static_cast<char>(m_packed[m_next++]);
            }
            return PropertyTree(std::move(text));
        }
        case 6:
        case 7:
        {
            const std::size_t count = Size();
            PropertyTree::List& list = part.makeList(count);
            for (std::size_t index = 0; index != count; ++index)
            {
                list.push_back(Reference());
            }
            return part;
        }
        case 8:
        {
            const PropertyTree& keys = Reference();
            PropertyTree::Map& map = part.makeMap(keys.getList().size());
            for (const PropertyTree& key : keys.getList())
            {
                map[key.getScalar().toString()] = Reference();
            }
            return part;
        }
        default:
            return part;
        }
    }

    const PropertyTree& Reference() { return m_parts[m_parts.size() - Size()]; }

    std::size_t Size() { return static_cast<std::size_t>(Number()); }

    std::uint64_t Number()
    {
        std::uint64_t number = 0;
        for (int shift = 0;; shift += 7)
        {
            const std::uint8_t byte = m_packed[m_next++];
            number |= static_cast<std::uint64_t>(byte & 0x7f) << shift;
            if ((byte & 0x80) == 0)
            {
                return number;
            }
        }
    }

    std::span<const std::uint8_t> m_packed;
    std::size_t m_next = 0;
    std::vector<PropertyTree> m_parts;
};

} // namespace

PropertyTree Unpack(std::span<const std::uint8_t> packed)
{
    return Unpacker(packed).Run();
}

} // namespace Ombrel::Inspection
