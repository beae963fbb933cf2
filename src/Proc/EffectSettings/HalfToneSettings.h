#ifndef OMBREL_PROC_EFFECT_SETTINGS_HALF_TONE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_HALF_TONE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectHalfTone.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API HalfToneSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectHalfTone, HalfToneSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
