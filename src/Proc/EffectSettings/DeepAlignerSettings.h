#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_ALIGNER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_ALIGNER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepAligner.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepAlignerSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepAligner, DeepAlignerSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
