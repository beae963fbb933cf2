#include "Inspection/PackedTree.h"

#include <bit>
#include <cstddef>
#include <map>
#include <string_view>

namespace Ombrel::Inspection
{
namespace
{

using Bytes = std::vector<std::uint8_t>;

class Packer
{
public:
    Bytes Run(const PropertyTree& tree)
    {
        Add(tree);
        return std::move(m_bytes);
    }

private:
    using Parts = std::vector<std::size_t>; // numbers of parts

    // The number of the part. A manifest is not deep.
    std::size_t Add(const PropertyTree& tree)
    {
        using Kind = PropertyTreeScalar::Kind;
        if (tree.isMap())
        {
            Parts keys;
            Parts values;
            for (const auto& [key, value] : tree.getMap())
            {
                keys.push_back(AddText(key));
                values.push_back(Add(value));
            }
            values.insert(values.begin(), AddParts(7, keys, true));
            return AddParts(8, values, false);
        }
        if (tree.isList())
        {
            Parts elements;
            for (const PropertyTree& element : tree.getList())
            {
                elements.push_back(Add(element));
            }
            return AddParts(6, elements, true);
        }
        if (tree.isNull())
        {
            return AddPart({0});
        }
        const PropertyTreeScalar& scalar = tree.getScalar();
        switch (scalar.kind())
        {
        case Kind::Bool:
            return AddPart({static_cast<std::uint8_t>(tree == PropertyTree(true) ? 2 : 1)});
        case Kind::Integer:
        {
            const std::int64_t integer = scalar.toInt();
            Bytes part{3};
            AddNumber(part, integer < 0 ? ((static_cast<std::uint64_t>(-(integer + 1))) << 1) | 1
                                        : static_cast<std::uint64_t>(integer) << 1);
            return AddPart(part);
        }
        case Kind::Float:
        {
            const auto bits = std::bit_cast<std::uint64_t>(scalar.toDouble());
            Bytes part{4};
            for (int byte = 0; byte != 8; ++byte)
            {
                part.push_back(static_cast<std::uint8_t>(bits >> (8 * byte)));
            }
            return AddPart(part);
        }
        default:
            return AddText(scalar.toString());
        }
    }

    std::size_t AddText(std::string_view text)
    {
        Bytes part{5};
        AddNumber(part, text.size());
        part.insert(part.end(), text.begin(), text.end());
        return AddPart(part);
    }

    // Known by its references, which say how far away the parts are only once it is new.
    std::size_t AddParts(std::uint8_t kind, const Parts& references, bool isCounted)
    {
        const auto [known, isNew] = m_lists.try_emplace({kind, references}, m_count);
        if (isNew)
        {
            m_bytes.push_back(kind);
            if (isCounted)
            {
                AddNumber(m_bytes, references.size());
            }
            for (const std::size_t reference : references)
            {
                AddNumber(m_bytes, m_count - reference);
            }
            ++m_count;
        }
        return known->second;
    }

    std::size_t AddPart(const Bytes& part)
    {
        const auto [known, isNew] = m_leaves.try_emplace(part, m_count);
        if (isNew)
        {
            m_bytes.insert(m_bytes.end(), part.begin(), part.end());
            ++m_count;
        }
        return known->second;
    }

    static void AddNumber(Bytes& bytes, std::uint64_t number)
    {
        for (; number > 0x7f; number >>= 7)
        {
            bytes.push_back(static_cast<std::uint8_t>(number | 0x80));
        }
        bytes.push_back(static_cast<std::uint8_t>(number));
    }

    Bytes m_bytes;
    std::size_t m_count = 0; // of the parts
    std::map<Bytes, std::size_t> m_leaves;
    std::map<std::pair<std::uint8_t, Parts>, std::size_t> m_lists;
};

} // namespace

std::vector<std::uint8_t> Pack(const PropertyTree& tree)
{
    return Packer().Run(tree);
}

} // namespace Ombrel::Inspection
