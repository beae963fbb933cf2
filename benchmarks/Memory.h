#ifndef OMBREL_BENCHMARKS_MEMORY_H
#define OMBREL_BENCHMARKS_MEMORY_H

#include "Goals.h"

namespace Ombrel::Benchmarks
{

/// How much memory a tree of 1,000 effects without faces takes, and the documents of other libraries with the same effects:
/// bytes per effect.
Figures MeasureMemory();

} // namespace Ombrel::Benchmarks

#endif
