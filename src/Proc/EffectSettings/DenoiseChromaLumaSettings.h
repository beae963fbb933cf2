#ifndef OMBREL_PROC_EFFECT_SETTINGS_DENOISE_CHROMA_LUMA_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DENOISE_CHROMA_LUMA_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDenoiseChromaLuma.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DenoiseChromaLumaSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDenoiseChromaLuma, DenoiseChromaLumaSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
