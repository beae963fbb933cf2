#ifndef OMBREL_INSPECTION_PLACE_H
#define OMBREL_INSPECTION_PLACE_H

#include "Inspection/Path.h"

#include <cstddef>
#include <string_view>

namespace Ombrel::Inspection
{

/// A place in a tree that is being walked: the step that led there and the place where it began. A path is made only for what
/// is found.
struct Place
{
    const Place* parent = nullptr; // null for the root, which has no step
    std::string_view key;
    std::size_t index = NO_INDEX; // in place of the key
    bool isKept = false;          // beyond the walk that came here, with all before it

    static constexpr std::size_t NO_INDEX = static_cast<std::size_t>(-1);

    Path ToPath() const
    {
        std::size_t count = 0;
        for (const Place* place = this; place->parent; place = place->parent)
        {
            ++count;
        }
        Path path;
        path.steps.resize(count);
        for (const Place* place = this; place->parent; place = place->parent)
        {
            path.steps[--count] = place->index == NO_INDEX ? PathStep(std::string(place->key)) : PathStep(place->index);
        }
        return path;
    }
};

} // namespace Ombrel::Inspection

#endif
