#include "Proc/EffectSettings/SplitToningSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& SplitToningSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
