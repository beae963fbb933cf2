#include "Proc/EffectSettings/ColorBalanceSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ColorBalanceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool ColorBalanceSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
