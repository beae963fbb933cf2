#ifndef OMBREL_PROC_EFFECT_SETTINGS_AUTO_ENHANCE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_AUTO_ENHANCE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectAutoEnhance.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API AutoEnhanceSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectAutoEnhance, AutoEnhanceSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
