#include "Proc/EffectSettings/DenoiseChromaLumaSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDenoiseChromaLuma, DenoiseChromaLumaSettings>;

DenoiseChromaLumaSettings::~DenoiseChromaLumaSettings() = default;

} // namespace Ombrel::PhotoCore
