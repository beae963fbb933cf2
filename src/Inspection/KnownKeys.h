#ifndef OMBREL_INSPECTION_KNOWN_KEYS_H
#define OMBREL_INSPECTION_KNOWN_KEYS_H

#include "Proc/EffectSettings/EffectSettingsExport.h"

#include <algorithm>

namespace Ombrel::Inspection
{

/// Whether it is known which keys the class has. One without a schema has none of its own if it is of the library. Of a class
/// that is known by its factory alone, which is null here, nothing is known.
inline bool AreKeysKnown(const PhotoCore::EffectClass* effectClass)
{
    return effectClass && (effectClass->getSchema() || std::ranges::any_of(PhotoCore::EffectClasses(), [=](const auto& own)
                                                                           { return &own == effectClass; }));
}

} // namespace Ombrel::Inspection

#endif
