#include "Proc/EffectSettings/DenoiseDCTSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDenoiseDCT, DenoiseDCTSettings>;

const std::string& DenoiseDCTSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
