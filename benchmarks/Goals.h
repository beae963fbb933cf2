#ifndef OMBREL_BENCHMARKS_GOALS_H
#define OMBREL_BENCHMARKS_GOALS_H

#include <iosfwd>
#include <map>
#include <string>

namespace Ombrel::Benchmarks
{

/// What was measured of one variant.
struct Figure
{
    double nanoseconds; // the median
    double allocations;
};

/// Prints how what was measured stands to what the library shall achieve, one goal in a line:
///
///     GOAL name value limit ok|miss
///
/// @param figures under "title/variant"; a goal whose figures are not there is left out
void PrintGoals(std::ostream& out, const std::map<std::string, Figure>& figures);

} // namespace Ombrel::Benchmarks

#endif
