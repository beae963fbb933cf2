#ifndef OMBREL_BENCHMARKS_GOALS_H
#define OMBREL_BENCHMARKS_GOALS_H

#include <iosfwd>
#include <map>
#include <string>

namespace Ombrel::Benchmarks
{

using Figures = std::map<std::string, double>; // under "title/variant"

struct Measured
{
    Figures nanoseconds; // medians
    Figures allocations;
    Figures bytes;
};

/// Prints how what was measured stands to what the library shall achieve, one goal in a line:
///
///     GOAL name value <=limit (aim) ok|miss
///
/// The aim is what may be reached; not every goal has one. A goal whose figures are not there is left out.
void PrintGoals(std::ostream& out, const Measured& measured);

} // namespace Ombrel::Benchmarks

#endif
