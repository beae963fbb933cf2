#ifndef OMBREL_INSPECTION_PACKED_TREE_H
#define OMBREL_INSPECTION_PACKED_TREE_H

#include "PropertyTree/PropertyTree.h"

#include <cstdint>
#include <span>
#include <vector>

namespace Ombrel::Inspection
{

// A tree in few bytes. Equal parts stand once, each before what it is a part of; the last is the whole. A part is
//
//     0 null, 1 false, 2 true
//     3 and an integer, its lowest bit the sign
//     4 and the eight bytes of a float, the lowest first
//     5, the length and the bytes of a text
//     6, the count of a list and its elements
//     7, the count of keys and the keys
//     8, a part of keys, and the values for these
//
// where a part is referred to by how many parts it stands before, and a number takes seven bits of each byte, the lowest first,
// with the eighth bit in all but the last.

std::vector<std::uint8_t> Pack(const PropertyTree& tree);

/// @param packed as `Pack` makes it and nothing else
PropertyTree Unpack(std::span<const std::uint8_t> packed);

} // namespace Ombrel::Inspection

#endif
