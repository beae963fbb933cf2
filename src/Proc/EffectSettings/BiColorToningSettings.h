#ifndef OMBREL_PROC_EFFECT_SETTINGS_BI_COLOR_TONING_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BI_COLOR_TONING_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectBiColorToning.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API BiColorToningSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectBiColorToning, BiColorToningSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
