#include "Proc/EffectSettings/TiltShiftSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& TiltShiftSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
