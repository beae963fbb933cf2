#include "Proc/EffectSettings/DenoiseChromaLumaSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DenoiseChromaLumaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
