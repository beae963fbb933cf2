#ifndef OMBREL_PROC_EFFECT_SETTINGS_BLUR_RADIAL_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BLUR_RADIAL_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectBlurRadial.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API BlurRadialSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectBlurRadial, BlurRadialSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    BlurRadialSettings();
    BlurRadialSettings(const BlurRadialSettings&);
    BlurRadialSettings(BlurRadialSettings&&) noexcept;
    BlurRadialSettings& operator=(const BlurRadialSettings&);
    BlurRadialSettings& operator=(BlurRadialSettings&&) noexcept;
    ~BlurRadialSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
