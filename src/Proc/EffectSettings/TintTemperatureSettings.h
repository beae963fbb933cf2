#ifndef OMBREL_PROC_EFFECT_SETTINGS_TINT_TEMPERATURE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_TINT_TEMPERATURE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectTintTemperature.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API TintTemperatureSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectTintTemperature, TintTemperatureSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

    /// What the record says.
    bool IsEmpty() const override;
};

} // namespace Ombrel::PhotoCore

#endif
