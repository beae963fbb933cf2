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
    bool isOfEffect = false;      // of a tree that is a list or holds effects in effects

    static constexpr std::size_t NO_INDEX = static_cast<std::size_t>(-1);

    /// The effect in which the place is, or the root.
    const Place& Effect() const noexcept
    {
        const Place* place = this;
        while (place->parent && !place->isOfEffect)
        {
            place = place->parent;
        }
        return *place;
    }

    /// The steps that lead here from `start`, which is on the way.
    std::vector<PathStep> StepsFrom(const Place& start) const
    {
        std::size_t count = 0;
        for (const Place* place = this; place != &start; place = place->parent)
        {
            ++count;
        }
        std::vector<PathStep> steps(count);
        for (const Place* place = this; place != &start; place = place->parent)
        {
            steps[--count] = place->index == NO_INDEX ? PathStep(std::string(place->key)) : PathStep(place->index);
        }
        return steps;
    }
};

} // namespace Ombrel::Inspection

#endif
