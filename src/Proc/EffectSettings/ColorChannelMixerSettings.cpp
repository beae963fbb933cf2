#include "Proc/EffectSettings/ColorChannelMixerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColorChannelMixer, ColorChannelMixerSettings>;

ColorChannelMixerSettings::~ColorChannelMixerSettings() = default;

} // namespace Ombrel::PhotoCore
