#ifndef OMBREL_PROC_EFFECT_SETTINGS_LIGHT_LEAKS_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_LIGHT_LEAKS_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectLightLeaks.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API LightLeaksSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectLightLeaks, LightLeaksSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
