#ifndef OMBREL_EFFECTS_TOOL_PROPERTY_PATH_H
#define OMBREL_EFFECTS_TOOL_PROPERTY_PATH_H

#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::EffectsTool
{

/// The map keys and list indices that lead to a value. Which of the two a step is, the tree it is applied to decides.
using Path = std::vector<std::string>;
using PathView = std::span<const std::string>;

/// Splits at "/"; within a key "~1" stands for "/" and "~0" for "~". The empty text is one empty key.
Path ParsePath(std::string_view text);

/// The reverse of `ParsePath`, with control characters made visible; empty for an empty path.
std::string PathText(PathView path);

/// The index that `step` spells in decimal without sign or leading zeros, if it does.
std::optional<std::size_t> IndexOf(std::string_view step);

/// The child of a map or list, or null.
const PropertyTree* FindChild(const PropertyTree& tree, const std::string& step);

/// What `path` leads to, or null.
const PropertyTree* Find(const PropertyTree& tree, PathView path);
PropertyTree* Find(PropertyTree& tree, PathView path);

/// The steps to all children, in order; none for null and scalars.
std::vector<std::string> StepsOf(const PropertyTree& tree);

/// `path` with one step more.
Path Below(PathView path, const std::string& step);

/// The tree itself has no test for this state.
inline bool IsMap(const PropertyTree& tree)
{
    return !tree.isNull() && !tree.isScalar() && !tree.isList();
}

} // namespace Ombrel::EffectsTool

#endif
