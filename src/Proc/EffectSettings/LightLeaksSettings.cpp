#include "Proc/EffectSettings/LightLeaksSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& LightLeaksSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
