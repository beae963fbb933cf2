#ifndef OMBREL_PROC_EFFECT_SETTINGS_BLUR_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BLUR_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectBlur.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API BlurSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectBlur, BlurSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
