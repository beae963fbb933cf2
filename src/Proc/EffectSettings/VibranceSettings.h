#ifndef OMBREL_PROC_EFFECT_SETTINGS_VIBRANCE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_VIBRANCE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectVibrance.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API VibranceSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectVibrance, VibranceSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

    /// What the record says.
    bool IsEmpty() const override;
};

} // namespace Ombrel::PhotoCore

#endif
