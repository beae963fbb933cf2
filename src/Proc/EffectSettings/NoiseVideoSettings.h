#ifndef OMBREL_PROC_EFFECT_SETTINGS_NOISE_VIDEO_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_NOISE_VIDEO_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectNoiseVideo.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API NoiseVideoSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectNoiseVideo, NoiseVideoSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
