#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_DENOISER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_DENOISER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepDenoiser.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepDenoiserSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepDenoiser, DeepDenoiserSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
