#include "Proc/EffectSettings/BiColorToningSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& BiColorToningSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
