#include "Proc/EffectSettings/ColorBalanceAutoSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColorBalanceAuto, ColorBalanceAutoSettings>;

const std::string& ColorBalanceAutoSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool ColorBalanceAutoSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
