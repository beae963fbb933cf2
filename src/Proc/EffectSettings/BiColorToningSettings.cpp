#include "Proc/EffectSettings/BiColorToningSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBiColorToning, BiColorToningSettings>;

const std::string& BiColorToningSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
