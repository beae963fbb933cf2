#ifndef OMBREL_PROC_EFFECT_SETTINGS_COLOR_MIX_BURN_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_COLOR_MIX_BURN_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectColorMixBurn.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ColorMixBurnSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectColorMixBurn, ColorMixBurnSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
