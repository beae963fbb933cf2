#include "Proc/EffectSettings/BalanceLumaSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& BalanceLumaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool BalanceLumaSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
