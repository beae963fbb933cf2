#include "Proc/EffectSettings/DeepLumaUpscalerSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepLumaUpscalerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
