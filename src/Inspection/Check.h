#ifndef OMBREL_INSPECTION_CHECK_H
#define OMBREL_INSPECTION_CHECK_H

#include "Inspection/Finding.h"
#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <vector>

namespace Ombrel::Inspection
{

class Release;

/// How far a check goes, and for which release.
struct CheckOptions
{
    std::size_t maxFindings = std::numeric_limits<std::size_t>::max(); // the check ends with as many

    /// Null for what this library does with the tree; else what that release would do, as `ForRelease` says.
    std::shared_ptr<const Release> release = {};
};

/// What is wrong with a stored effect or a list of them, all of it, in the order in which the values are read:
/// `EffectSettings::DeserializePtr` throws if there is an error, and stops at the first. Without errors and warnings, what it
/// reads is written again as it stood, but for the values that a finding calls `DefaultWritten`.
///
/// Below an effect that is unknown, not registered or nested too deep nothing is looked at.
///
/// Threads: any number may check trees at once, also one and the same.
/// @throws std::bad_alloc and nothing else, whatever the tree holds
OMBREL_INSPECTION_API std::vector<Finding> Check(const PropertyTree& effectOrList, const CheckOptions& options = {});

} // namespace Ombrel::Inspection

#endif
