#ifndef OMBREL_PROC_EFFECT_SETTINGS_ADJUSTER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_ADJUSTER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectAdjuster.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API AdjusterSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectAdjuster, AdjusterSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
