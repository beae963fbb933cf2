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

extern template class EffectSettingsImpl<Proc::SettingsEffectColorMixBurn, ColorMixBurnSettings>;

} // namespace Ombrel::PhotoCore

#endif
