#ifndef OMBREL_EFFECTS_TOOL_PROPERTY_PATH_H
#define OMBREL_EFFECTS_TOOL_PROPERTY_PATH_H

#include "Inspection/Path.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::EffectsTool
{

/// The map keys and list indices that lead to a value. The tree decides whether a step is a key or an index.
using Path = std::vector<std::string>;
using PathView = std::span<const std::string>;

/// Splits at "/"; within a key "~1" stands for "/" and "~0" for "~". The empty text is one empty key.
Path ParsePath(std::string_view text);

/// The reverse of `ParsePath`, escaped for messages as the texts of `JsonError`; empty for an empty path.
std::string PathText(PathView path);

/// The same path with indices as text.
Path StepsOf(const Inspection::Path& path);

/// How many steps the path has.
std::size_t CountSteps(const Inspection::Path& path);

/// Whether the path begins with these steps. The path of a finding may be long, so no copy of it is made.
bool StartsWith(PathView path, PathView beginning);
bool StartsWith(PathView path, const Inspection::Path& beginning);
bool StartsWith(const Inspection::Path& path, PathView beginning);

/// The paths of one step each, joined by ", ".
std::string PathTexts(const std::vector<std::string>& steps);

/// The index, if `step` is a decimal number without sign and leading zeros.
std::optional<std::size_t> IndexOf(std::string_view step);

/// The child of a map or list, or null.
const PropertyTree* FindChild(const PropertyTree& tree, const std::string& step);

/// The value at the end of `path`, or null.
const PropertyTree* Find(const PropertyTree& tree, PathView path);
PropertyTree* Find(PropertyTree& tree, PathView path);

/// What `path` leads to, for a path that was taken from this tree.
/// @throws std::logic_error if it leads nowhere
const PropertyTree& At(const PropertyTree& tree, PathView path);
PropertyTree& At(PropertyTree& tree, PathView path);

/// The steps to all children, in order; none for null and scalars.
std::vector<std::string> StepsOf(const PropertyTree& tree);

/// For a message about a child that is not there: "expected" and the steps to those that are, or that there are none.
std::string ExpectedBelow(const PropertyTree& tree);

/// `path` with one more step.
Path Below(PathView path, const std::string& step);

} // namespace Ombrel::EffectsTool

#endif
