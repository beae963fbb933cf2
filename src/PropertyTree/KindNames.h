#ifndef OMBREL_PROPERTY_TREE_KIND_NAMES_H
#define OMBREL_PROPERTY_TREE_KIND_NAMES_H

#include "PropertyTree/PropertyTree.h"

// How messages name what a tree holds.
namespace Ombrel
{

inline const char* NameOf(PropertyTreeScalar::Kind kind) noexcept
{
    switch (kind)
    {
    case PropertyTreeScalar::Kind::Bool:
        return "a bool";
    case PropertyTreeScalar::Kind::Integer:
        return "an integer";
    case PropertyTreeScalar::Kind::Float:
        return "a float";
    case PropertyTreeScalar::Kind::String:
        return "a string";
    }
    return "nothing";
}

/// The state of the tree; every scalar is "a scalar".
inline const char* NameOfState(const PropertyTree& tree) noexcept
{
    if (tree.isNull())
    {
        return "null";
    }
    if (tree.isScalar())
    {
        return "a scalar";
    }
    return tree.isList() ? "a list" : "a map";
}

} // namespace Ombrel

#endif
