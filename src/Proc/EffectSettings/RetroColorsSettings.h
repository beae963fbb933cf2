#ifndef OMBREL_PROC_EFFECT_SETTINGS_RETRO_COLORS_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_RETRO_COLORS_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectRetroColors.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API RetroColorsSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectRetroColors, RetroColorsSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
