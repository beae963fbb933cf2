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

enum class Faces
{
    Without,
    With,
};

/// Records of twelve effects in turn, or of thirteen with the one that has a face, with fields of every kind but effects, in
/// which every value differs from its default: a gradient of 8 colours, a trace of 10 points, the outline of a face of 200.
std::vector<std::unique_ptr<Proc::Settings>> FullRecords(std::size_t count, Faces faces);

} // namespace Ombrel::Benchmarks

#endif
