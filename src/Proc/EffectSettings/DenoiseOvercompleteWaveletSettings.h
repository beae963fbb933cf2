#ifndef OMBREL_PROC_EFFECT_SETTINGS_DENOISE_OVERCOMPLETE_WAVELET_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DENOISE_OVERCOMPLETE_WAVELET_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDenoiseOvercompleteWavelet.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DenoiseOvercompleteWaveletSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDenoiseOvercompleteWavelet,
                                              DenoiseOvercompleteWaveletSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
