#ifndef OMBREL_BENCHMARKS_SAMPLES_H
#define OMBREL_BENCHMARKS_SAMPLES_H

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/SettingsEffectAdjuster.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Ombrel::Benchmarks
{

/// Every value differs from its default, those of the nested records included. Another `seed` gives other values.
Proc::SettingsEffectAdjuster FullAdjuster(int seed = 0);

/// Two plain values differ from their defaults.
Proc::SettingsEffectAdjuster SparseAdjuster();

/// Records of eight effects in turn, in which every value differs from its default.
std::vector<std::unique_ptr<Proc::Settings>> FullRecords(std::size_t count);

} // namespace Ombrel::Benchmarks

#endif
