#ifndef OMBREL_BENCHMARKS_SAMPLE_LISTS_H
#define OMBREL_BENCHMARKS_SAMPLE_LISTS_H

#include "HandWritten.h"
#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Settings/Settings.h"
#include "PropertyTree/PropertyTree.h"

#include <memory>
#include <string>
#include <vector>

namespace Ombrel::Benchmarks
{

/// The same effects as the library and as the hand-written code have them, and their stored form.
struct SampleList
{
    explicit SampleList(const std::vector<std::unique_ptr<Proc::Settings>>& records);

    PhotoCore::IEffectSettings::List effects;
    HandWrittenEffect::List handWritten;
    PropertyTree tree;
    std::string text;
};

/// Made when they are first asked for.
const SampleList& MixedEffects();     // 1,000 without faces
const SampleList& EffectsWithFaces(); // 1,000
const SampleList& ManyEffects();      // 100,000 without faces

} // namespace Ombrel::Benchmarks

#endif
