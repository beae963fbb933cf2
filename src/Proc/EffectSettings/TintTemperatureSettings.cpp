#include "Proc/EffectSettings/TintTemperatureSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectTintTemperature, TintTemperatureSettings>;

const std::string& TintTemperatureSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool TintTemperatureSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
