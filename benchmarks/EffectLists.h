#ifndef OMBREL_BENCHMARKS_EFFECT_LISTS_H
#define OMBREL_BENCHMARKS_EFFECT_LISTS_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "PropertyTree/PropertyTree.h"

namespace Ombrel::Benchmarks
{

// The library's own way with the effects of a document: a list of trees, each with its class id.
PropertyTree WriteEffects(const PhotoCore::IEffectSettings::List& effects);
PhotoCore::IEffectSettings::List ReadEffects(const PropertyTree& tree);

} // namespace Ombrel::Benchmarks

#endif
