#include "Proc/EffectSettings/WhiteBalanceSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& WhiteBalanceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
