#ifndef OMBREL_PROC_EFFECT_SETTINGS_VIGNETTE_FILTER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_VIGNETTE_FILTER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectVignetteFilter.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API VignetteFilterSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectVignetteFilter, VignetteFilterSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
