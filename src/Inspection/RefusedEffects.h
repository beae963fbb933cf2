#ifndef OMBREL_INSPECTION_REFUSED_EFFECTS_H
#define OMBREL_INSPECTION_REFUSED_EFFECTS_H

#include "Inspection/Finding.h"
#include "Inspection/RecordInfo.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <unordered_set>
#include <vector>

namespace Ombrel::PhotoCore
{
class IEffectSettings;
}

namespace Ombrel::Inspection
{

inline constexpr Proc::ValueSchema EFFECT_VALUE{Proc::ValueKind::Effect};

/// Stored effects, by where their trees stand.
using EffectSet = std::unordered_set<const PropertyTree*>;

/// The schema of the class that the map of a stored effect names; null if there is none.
const Proc::RecordSchema* SchemaOfEffect(const PropertyTree& effect);

/// Adds the effects that have an error, but not those around them.
/// @param findings what a check says of the effect
/// @param steps how many steps of their paths lead to the effect
void AddRefused(const PropertyTree& effect, std::span<const Finding> findings, std::size_t steps, EffectSet& refused);

/// Adds the effects whose classes fail to read or to write them although no error is known of them, with a finding for each.
/// @param base the path of the effect; null for the root
void AddFailing(const PropertyTree& effect, const std::shared_ptr<const Path>& base, EffectSet& refused,
                std::vector<Finding>& findings);

/// Adds one effect with the finding that its class refuses it.
void AddFailing(const PropertyTree& effect, Path path, const std::string& reason, EffectSet& refused,
                std::vector<Finding>& findings);

/// A stored effect without some of the effects in it: lists do not have them, nor do maps have their keys.
/// @param without null for all effects in it
PropertyTree WithoutEffects(const PropertyTree& effect, const EffectSet* without, RecordInfos& infos);

/// Reads an effect and writes it again.
/// @return why it failed; empty if it did not
/// @throws std::bad_alloc
std::string ReadAndWrite(const PropertyTree& tree, std::shared_ptr<PhotoCore::IEffectSettings>& effect, PropertyTree& written);

} // namespace Ombrel::Inspection

#endif
