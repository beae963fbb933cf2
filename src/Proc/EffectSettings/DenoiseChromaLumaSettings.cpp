#include "Proc/EffectSettings/DenoiseChromaLumaSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDenoiseChromaLuma, DenoiseChromaLumaSettings>;

const std::string& DenoiseChromaLumaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
