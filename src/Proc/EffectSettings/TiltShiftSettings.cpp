#include "Proc/EffectSettings/TiltShiftSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectTiltShift, TiltShiftSettings>;

TiltShiftSettings::~TiltShiftSettings() = default;

} // namespace Ombrel::PhotoCore
