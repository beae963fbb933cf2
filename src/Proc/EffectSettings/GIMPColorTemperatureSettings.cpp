#include "Proc/EffectSettings/GIMPColorTemperatureSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPColorTemperature, GIMPColorTemperatureSettings>;

GIMPColorTemperatureSettings::~GIMPColorTemperatureSettings() = default;

} // namespace Ombrel::PhotoCore
