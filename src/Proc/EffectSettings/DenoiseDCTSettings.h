#ifndef OMBREL_PROC_EFFECT_SETTINGS_DENOISE_DCT_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DENOISE_DCT_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDenoiseDCT.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DenoiseDCTSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDenoiseDCT, DenoiseDCTSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
