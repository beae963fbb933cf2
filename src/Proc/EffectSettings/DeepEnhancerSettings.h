#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_ENHANCER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_ENHANCER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepEnhancer.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepEnhancerSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepEnhancer, DeepEnhancerSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
