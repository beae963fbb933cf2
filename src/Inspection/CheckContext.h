#ifndef OMBREL_INSPECTION_CHECK_CONTEXT_H
#define OMBREL_INSPECTION_CHECK_CONTEXT_H

#include "Inspection/Path.h"
#include "Inspection/Place.h"
#include "Inspection/RecordInfo.h"

#include <deque>
#include <memory>
#include <unordered_map>

namespace Ombrel::Inspection
{

/// What lasts for all effects of one check.
struct CheckContext
{
    /// Whether another search for the nearest name may be made. They take too long for a tree that is wrong everywhere.
    bool MaySearch() noexcept { return searches != 0 && searches-- != 0; }

    /// The path of an effect, which is one for all that is found in it; null for the root.
    std::shared_ptr<const Path> PathOfEffect(const Place& effect);

    RecordInfos infos;
    std::deque<Place> places;                                            // of the effects that are found
    std::unordered_map<const Place*, std::shared_ptr<const Path>> paths; // of those in which something is found
    int searches = 1000;
};

} // namespace Ombrel::Inspection

#endif
