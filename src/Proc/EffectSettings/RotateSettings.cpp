#include "Proc/EffectSettings/RotateSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& RotateSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
