#ifndef OMBREL_INSPECTION_KEYLESS_MEMBERS_H
#define OMBREL_INSPECTION_KEYLESS_MEMBERS_H

#include "Inspection/Describe.h"
#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Reflection/Schema.h"

#include <vector>

namespace Ombrel::Inspection
{

/// The members without a key of the effect and of its record, those that a caller's class inherits too.
/// @throws what an effect of a caller's class throws
std::vector<KeylessMember> KeylessMembersOf(PhotoCore::IEffectSettings& effect);

/// Those of a record that stands in effects.
std::vector<KeylessMember> KeylessMembersOf(const Proc::RecordSchema& record);

} // namespace Ombrel::Inspection

#endif
