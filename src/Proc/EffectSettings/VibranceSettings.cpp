#include "Proc/EffectSettings/VibranceSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& VibranceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool VibranceSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
