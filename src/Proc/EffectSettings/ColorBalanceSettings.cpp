#include "Proc/EffectSettings/ColorBalanceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColorBalance, ColorBalanceSettings>;

const std::string& ColorBalanceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool ColorBalanceSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
