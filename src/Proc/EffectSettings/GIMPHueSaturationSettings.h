#ifndef OMBREL_PROC_EFFECT_SETTINGS_GIMP_HUE_SATURATION_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GIMP_HUE_SATURATION_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGIMPHueSaturation.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GIMPHueSaturationSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectGIMPHueSaturation, GIMPHueSaturationSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
