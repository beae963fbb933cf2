#include "Proc/EffectSettings/DetailsEnhanceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDetailsEnhance, DetailsEnhanceSettings>;

const std::string& DetailsEnhanceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool DetailsEnhanceSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
