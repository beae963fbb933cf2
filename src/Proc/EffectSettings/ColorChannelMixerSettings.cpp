#include "Proc/EffectSettings/ColorChannelMixerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColorChannelMixer, ColorChannelMixerSettings>;

const std::string& ColorChannelMixerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
