#include "Proc/EffectSettings/LightLeaksSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectLightLeaks, LightLeaksSettings>;

LightLeaksSettings::~LightLeaksSettings() = default;

} // namespace Ombrel::PhotoCore
