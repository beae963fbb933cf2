#include "Proc/EffectSettings/ShapeMaskSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectShapeMask, ShapeMaskSettings>;

ShapeMaskSettings::~ShapeMaskSettings() = default;

} // namespace Ombrel::PhotoCore
