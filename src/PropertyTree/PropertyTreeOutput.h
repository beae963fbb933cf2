#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_OUTPUT_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_OUTPUT_H

#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <concepts>
#include <iosfwd>

// Trees and scalars as text for people, in a log or in a failed test. The text may change with any version; what is to be read
// back is written as JSON.
//
//     {"enabled": true, "name": "a \"text\"", "radius": 3, "sigma": 1.0, "trace": [null, -0.5]}
//
// It is one line. A float has as many digits as tell it from every other float, and always a point, an exponent or a name (inf,
// nan), so that it differs from an integer. In a text and in a key, quotes, backslashes, line ends and tabs are escaped as in
// C++; other control characters and bytes that are not valid UTF-8 are written as \x and two digits. The stream's locale, flags
// and width have no effect.

namespace Ombrel
{

/// Writes the tree, as described above. Trees may be nested as deep as memory allows. It ends early if the stream fails.
/// @throws std::bad_alloc, std::ios_base::failure if the stream asks for that
OMBREL_API void Print(std::ostream& out, const PropertyTree& tree);
OMBREL_API void Print(std::ostream& out, const PropertyTreeScalar& scalar);

/// `Print` for exactly these two types: numbers and texts convert into both, and must not be printed as trees by accident.
template <class T>
requires(std::same_as<T, PropertyTree> || std::same_as<T, PropertyTreeScalar>) std::ostream& operator<<(std::ostream& out,
                                                                                                        const T& treeOrScalar)
{
    Print(out, treeOrScalar);
    return out;
}

} // namespace Ombrel

#endif
