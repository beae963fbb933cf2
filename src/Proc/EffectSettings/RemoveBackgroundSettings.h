#ifndef OMBREL_PROC_EFFECT_SETTINGS_REMOVE_BACKGROUND_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_REMOVE_BACKGROUND_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectRemoveBackground.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API RemoveBackgroundSettings
    : public EffectSettingsVarInputReflection<Proc::SettingsEffectRemoveBackground, RemoveBackgroundSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    RemoveBackgroundSettings();
    RemoveBackgroundSettings(const RemoveBackgroundSettings&);
    RemoveBackgroundSettings(RemoveBackgroundSettings&&) noexcept;
    RemoveBackgroundSettings& operator=(const RemoveBackgroundSettings&);
    RemoveBackgroundSettings& operator=(RemoveBackgroundSettings&&) noexcept;
    ~RemoveBackgroundSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
