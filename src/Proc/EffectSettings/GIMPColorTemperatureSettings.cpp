#include "Proc/EffectSettings/GIMPColorTemperatureSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPColorTemperature, GIMPColorTemperatureSettings>;

const std::string& GIMPColorTemperatureSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
