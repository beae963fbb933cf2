#include "Proc/EffectSettings/DeepImageEnhancerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepImageEnhancer, DeepImageEnhancerSettings>;

const std::string& DeepImageEnhancerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
