#ifndef OMBREL_INSPECTION_KNOWN_CLASS_H
#define OMBREL_INSPECTION_KNOWN_CLASS_H

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>

namespace Ombrel::Inspection
{

inline constexpr std::size_t DEEPEST = 512; // how many effects may stand in each other, as `SerializePtr` says

/// Whether the class is the library's own and not a caller's.
bool IsOwn(const PhotoCore::EffectClass& effectClass);

/// The class of a stored effect whose keys are known; null for everything else.
const PhotoCore::EffectClass* KnownClassOf(const PropertyTree& effect);

} // namespace Ombrel::Inspection

#endif
