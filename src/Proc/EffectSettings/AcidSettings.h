#ifndef OMBREL_PROC_EFFECT_SETTINGS_ACID_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_ACID_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectAcid.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API AcidSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectAcid, AcidSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
