#include "Proc/EffectSettings/ColorBalanceAutoSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ColorBalanceAutoSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool ColorBalanceAutoSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
