#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_COLORIZER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_COLORIZER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepColorizer.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepColorizerSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepColorizer, DeepColorizerSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
