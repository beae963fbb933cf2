#ifndef OMBREL_PROC_EFFECT_SETTINGS_BLUR_BOKEH_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BLUR_BOKEH_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectBlurBokeh.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API BlurBokehSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectBlurBokeh, BlurBokehSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    BlurBokehSettings();
    BlurBokehSettings(const BlurBokehSettings&);
    BlurBokehSettings(BlurBokehSettings&&) noexcept;
    BlurBokehSettings& operator=(const BlurBokehSettings&);
    BlurBokehSettings& operator=(BlurBokehSettings&&) noexcept;
    ~BlurBokehSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
