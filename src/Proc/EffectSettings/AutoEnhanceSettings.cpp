#include "Proc/EffectSettings/AutoEnhanceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAutoEnhance, AutoEnhanceSettings>;

const std::string& AutoEnhanceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
