#ifndef OMBREL_INSPECTION_CHECK_CONTEXT_H
#define OMBREL_INSPECTION_CHECK_CONTEXT_H

#include "Inspection/Place.h"
#include "Inspection/RecordInfo.h"

#include <deque>

namespace Ombrel::Inspection
{

/// What lasts for all effects of one check.
struct CheckContext
{
    /// Whether another search for the nearest name may be made. They take too long for a tree that is wrong everywhere.
    bool MaySearch() noexcept { return searches != 0 && searches-- != 0; }

    RecordInfos infos;
    std::deque<Place> places; // of the effects that are found
    int searches = 1000;
};

} // namespace Ombrel::Inspection

#endif
