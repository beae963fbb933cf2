#include "Proc/EffectSettings/VibranceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectVibrance, VibranceSettings>;

VibranceSettings::~VibranceSettings() = default;

bool VibranceSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
