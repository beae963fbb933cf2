#ifndef OMBREL_PROC_EFFECT_SETTINGS_GRADIENT_POSTERIZE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GRADIENT_POSTERIZE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGradientPosterize.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GradientPosterizeSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectGradientPosterize, GradientPosterizeSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
