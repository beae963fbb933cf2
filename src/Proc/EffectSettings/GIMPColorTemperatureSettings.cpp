#include "Proc/EffectSettings/GIMPColorTemperatureSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& GIMPColorTemperatureSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
