#ifndef OMBREL_PROC_EFFECT_SETTINGS_BLUR_MOTION_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BLUR_MOTION_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectBlurMotion.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API BlurMotionSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectBlurMotion, BlurMotionSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
