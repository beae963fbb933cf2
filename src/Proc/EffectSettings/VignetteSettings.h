#ifndef OMBREL_PROC_EFFECT_SETTINGS_VIGNETTE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_VIGNETTE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectVignette.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API VignetteSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectVignette, VignetteSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
