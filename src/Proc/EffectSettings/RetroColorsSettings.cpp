#include "Proc/EffectSettings/RetroColorsSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectRetroColors, RetroColorsSettings>;

RetroColorsSettings::~RetroColorsSettings() = default;

} // namespace Ombrel::PhotoCore
