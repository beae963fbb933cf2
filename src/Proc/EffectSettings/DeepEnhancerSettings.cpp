#include "Proc/EffectSettings/DeepEnhancerSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepEnhancerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
