#include "Proc/EffectSettings/BlurAdaptiveSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& BlurAdaptiveSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
