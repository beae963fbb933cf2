#ifndef OMBREL_PROC_EFFECT_SETTINGS_GIMP_COLOR_TEMPERATURE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GIMP_COLOR_TEMPERATURE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGIMPColorTemperature.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GIMPColorTemperatureSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectGIMPColorTemperature, GIMPColorTemperatureSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
