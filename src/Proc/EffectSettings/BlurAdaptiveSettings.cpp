#include "Proc/EffectSettings/BlurAdaptiveSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBlurAdaptive, BlurAdaptiveSettings>;

const std::string& BlurAdaptiveSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
