#include "Proc/EffectSettings/BiColorToningSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBiColorToning, BiColorToningSettings>;

BiColorToningSettings::~BiColorToningSettings() = default;

} // namespace Ombrel::PhotoCore
