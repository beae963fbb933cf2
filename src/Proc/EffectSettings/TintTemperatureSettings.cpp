#include "Proc/EffectSettings/TintTemperatureSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectTintTemperature, TintTemperatureSettings>;

TintTemperatureSettings::~TintTemperatureSettings() = default;

bool TintTemperatureSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
