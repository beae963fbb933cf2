#ifndef OMBREL_INSPECTION_PATH_H
#define OMBREL_INSPECTION_PATH_H

#include "OmbrelExport.h"

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace Ombrel::Inspection
{

/// One step down a tree: the key of a map or the index of a list.
using PathStep = std::variant<std::string, std::size_t>;

/// The way from the root of a tree to a value in it; empty for the root.
struct Path
{
    /// Keys and indices joined with "/", with "~0" and "~1" for "~" and "/" within a key: "2/smartBlur/lumaRadius".
    OMBREL_API std::string ToText() const;

    bool operator==(const Path&) const = default;

    std::vector<PathStep> steps;
};

} // namespace Ombrel::Inspection

#endif
