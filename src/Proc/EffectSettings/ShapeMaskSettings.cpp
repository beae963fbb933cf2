#include "Proc/EffectSettings/ShapeMaskSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ShapeMaskSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
