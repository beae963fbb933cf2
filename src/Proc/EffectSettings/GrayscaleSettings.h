#ifndef OMBREL_PROC_EFFECT_SETTINGS_GRAYSCALE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GRAYSCALE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGrayscale.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GrayscaleSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectGrayscale, GrayscaleSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
