#include "Proc/EffectSettings/AutoEnhanceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAutoEnhance, AutoEnhanceSettings>;

AutoEnhanceSettings::~AutoEnhanceSettings() = default;

} // namespace Ombrel::PhotoCore
