#include "Proc/EffectSettings/BlurMotionSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& BlurMotionSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
