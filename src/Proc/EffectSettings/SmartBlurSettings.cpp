#include "Proc/EffectSettings/SmartBlurSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectSmartBlur, SmartBlurSettings>;

const std::string& SmartBlurSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool SmartBlurSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
