#ifndef OMBREL_PROC_EFFECT_SETTINGS_BLEND_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BLEND_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectImageBlender.h"

namespace Ombrel::PhotoCore
{

/// It is not registered: no effect is made by its class id, and a caller makes it by `Create`.
class OMBREL_API BlendSettings : public EffectSettingsTwoInputReflection<Proc::SettingsEffectImageBlender, BlendSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    BlendSettings();
    BlendSettings(const BlendSettings&);
    BlendSettings(BlendSettings&&) noexcept;
    BlendSettings& operator=(const BlendSettings&);
    BlendSettings& operator=(BlendSettings&&) noexcept;
    ~BlendSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
