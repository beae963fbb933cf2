#include "Proc/EffectSettings/NoiseVideoSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectNoiseVideo, NoiseVideoSettings>;

NoiseVideoSettings::~NoiseVideoSettings() = default;

} // namespace Ombrel::PhotoCore
