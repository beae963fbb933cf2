#include "Proc/EffectSettings/DeepImageEnhancerSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepImageEnhancerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
