#include "Proc/EffectSettings/BalanceLumaSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBalanceLuma, BalanceLumaSettings>;

const std::string& BalanceLumaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool BalanceLumaSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
