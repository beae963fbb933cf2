#ifndef OMBREL_PROC_EFFECT_SETTINGS_AUTO_GLARE_REMOVE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_AUTO_GLARE_REMOVE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectAutoGlareRemove.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API AutoGlareRemoveSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectAutoGlareRemove, AutoGlareRemoveSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    AutoGlareRemoveSettings();
    AutoGlareRemoveSettings(const AutoGlareRemoveSettings&);
    AutoGlareRemoveSettings(AutoGlareRemoveSettings&&) noexcept;
    AutoGlareRemoveSettings& operator=(const AutoGlareRemoveSettings&);
    AutoGlareRemoveSettings& operator=(AutoGlareRemoveSettings&&) noexcept;
    ~AutoGlareRemoveSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
