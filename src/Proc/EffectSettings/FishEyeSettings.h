#ifndef OMBREL_PROC_EFFECT_SETTINGS_FISH_EYE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_FISH_EYE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectFishEye.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API FishEyeSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectFishEye, FishEyeSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
