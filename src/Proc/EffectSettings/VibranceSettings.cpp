#include "Proc/EffectSettings/VibranceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectVibrance, VibranceSettings>;

const std::string& VibranceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool VibranceSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
