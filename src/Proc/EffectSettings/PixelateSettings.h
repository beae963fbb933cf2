#ifndef OMBREL_PROC_EFFECT_SETTINGS_PIXELATE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_PIXELATE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectPixelate.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API PixelateSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectPixelate, PixelateSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
