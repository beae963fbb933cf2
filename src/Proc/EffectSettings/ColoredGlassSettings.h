#ifndef OMBREL_PROC_EFFECT_SETTINGS_COLORED_GLASS_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_COLORED_GLASS_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectColoredGlass.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ColoredGlassSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectColoredGlass, ColoredGlassSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
