#ifndef OMBREL_PROC_EFFECT_SETTINGS_BLUR_ADAPTIVE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BLUR_ADAPTIVE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectBlurAdaptive.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API BlurAdaptiveSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectBlurAdaptive, BlurAdaptiveSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
