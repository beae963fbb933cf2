#include "Proc/EffectSettings/GIMPHueSaturationSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPHueSaturation, GIMPHueSaturationSettings>;

const std::string& GIMPHueSaturationSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
