#ifndef OMBREL_PROC_EFFECT_SETTINGS_GIMP_COLOR_CORRECTION_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GIMP_COLOR_CORRECTION_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGIMPColorCorrection.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GIMPColorCorrectionSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectGIMPColorCorrection, GIMPColorCorrectionSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
