#ifndef OMBREL_INSPECTION_MERGE_H
#define OMBREL_INSPECTION_MERGE_H

#include "Inspection/Path.h"
#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <optional>
#include <vector>

namespace Ombrel::Inspection
{

/// A value that both sides have changed, and not to the same. Values are full ones, and nothing where there is none.
struct MergeConflict
{
    Path path;                               // in the merged tree; for an effect that ours has taken out, of the list
    std::optional<PropertyTree> base = {};   // before both changes
    std::optional<PropertyTree> ours = {};   // the merged tree has it
    std::optional<PropertyTree> theirs = {}; // the merged tree does not have it
};

/// What `Merge` makes.
struct MergeResult
{
    PropertyTree merged;                  // with the value of ours where there is a conflict
    std::vector<MergeConflict> conflicts; // in the order of the merged tree
};

/// Puts together what two sides have made of one stored effect or list of them: what is read counts, as for `Diff`. What is
/// stored stays as it stands in `ours` unless theirs alone has changed it.
///
/// Effects in lists are found again as by `Diff`. What both sides have put behind the same effect stands there twice, ours
/// first, unless it is the same. Sets, maps of colours and lists of other elements whose length one side has changed are taken
/// as a whole.
/// @throws std::bad_alloc and nothing else, whatever the trees hold
OMBREL_INSPECTION_API MergeResult Merge(const PropertyTree& base, const PropertyTree& ours, const PropertyTree& theirs);

} // namespace Ombrel::Inspection

#endif
