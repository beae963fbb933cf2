#include "Proc/EffectSettings/AutoEnhanceSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& AutoEnhanceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
