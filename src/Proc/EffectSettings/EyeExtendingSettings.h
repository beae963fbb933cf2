#ifndef OMBREL_PROC_EFFECT_SETTINGS_EYE_EXTENDING_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_EYE_EXTENDING_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectEyeExtending.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API EyeExtendingSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectEyeExtending, EyeExtendingSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    EyeExtendingSettings();
    EyeExtendingSettings(const EyeExtendingSettings&);
    EyeExtendingSettings(EyeExtendingSettings&&) noexcept;
    EyeExtendingSettings& operator=(const EyeExtendingSettings&);
    EyeExtendingSettings& operator=(EyeExtendingSettings&&) noexcept;
    ~EyeExtendingSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
