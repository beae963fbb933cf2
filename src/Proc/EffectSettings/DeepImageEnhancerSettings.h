#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_IMAGE_ENHANCER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_IMAGE_ENHANCER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepImageEnhancer.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepImageEnhancerSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepImageEnhancer, DeepImageEnhancerSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
