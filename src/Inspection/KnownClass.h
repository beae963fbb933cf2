#ifndef OMBREL_INSPECTION_KNOWN_CLASS_H
#define OMBREL_INSPECTION_KNOWN_CLASS_H

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>

namespace Ombrel::Inspection
{

inline constexpr std::size_t DEEPEST = 512; // how many effects may stand in each other, as `SerializePtr` says

// What the keys hold that every effect has.
inline constexpr Proc::ValueSchema IMPL_NAME_VALUE{Proc::ValueKind::String};
inline constexpr Proc::ValueSchema HELPER_SETTINGS_VALUE{.kind = Proc::ValueKind::Record,
                                                         .record = &PhotoCore::HelperSettings::Schema};

/// Whether the class is the library's own and not a caller's.
bool IsOwn(const PhotoCore::EffectClass& effectClass);

/// Whether it is known which keys the class has. One without a schema has none of its own if it is of the library. Of a class
/// that is known by its factory alone, which is null here, nothing is known.
bool AreKeysKnown(const PhotoCore::EffectClass* effectClass);

/// The class of a stored effect whose keys are known; null for everything else.
const PhotoCore::EffectClass* KnownClassOf(const PropertyTree& effect);

/// Whether two stored effects name the same class, or none.
bool HaveSameName(const PropertyTree& a, const PropertyTree& b);

} // namespace Ombrel::Inspection

#endif
