#ifndef OMBREL_PROC_EFFECT_SETTINGS_SMART_BLUR_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_SMART_BLUR_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectSmartBlur.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API SmartBlurSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectSmartBlur, SmartBlurSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

    /// What the record says.
    bool IsEmpty() const override;
};

} // namespace Ombrel::PhotoCore

#endif
