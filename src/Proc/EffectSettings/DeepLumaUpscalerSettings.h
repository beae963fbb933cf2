#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_LUMA_UPSCALER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_LUMA_UPSCALER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepLumaUpscaler.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepLumaUpscalerSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepLumaUpscaler, DeepLumaUpscalerSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
