#include "Proc/EffectSettings/DeepLumaUpscalerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepLumaUpscaler, DeepLumaUpscalerSettings>;

const std::string& DeepLumaUpscalerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
