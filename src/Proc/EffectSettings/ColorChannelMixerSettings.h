#ifndef OMBREL_PROC_EFFECT_SETTINGS_COLOR_CHANNEL_MIXER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_COLOR_CHANNEL_MIXER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectColorChannelMixer.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ColorChannelMixerSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectColorChannelMixer, ColorChannelMixerSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
