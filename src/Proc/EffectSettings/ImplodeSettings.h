#ifndef OMBREL_PROC_EFFECT_SETTINGS_IMPLODE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_IMPLODE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectImplode.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ImplodeSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectImplode, ImplodeSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
