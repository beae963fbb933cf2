#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_ADJUSTER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_ADJUSTER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepAdjuster.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepAdjusterSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepAdjuster, DeepAdjusterSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
