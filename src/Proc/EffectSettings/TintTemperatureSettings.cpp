#include "Proc/EffectSettings/TintTemperatureSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& TintTemperatureSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool TintTemperatureSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
