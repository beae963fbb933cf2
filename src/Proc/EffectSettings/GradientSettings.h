#ifndef OMBREL_PROC_EFFECT_SETTINGS_GRADIENT_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GRADIENT_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGradient.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GradientSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectGradient, GradientSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    GradientSettings();
    GradientSettings(const GradientSettings&);
    GradientSettings(GradientSettings&&) noexcept;
    GradientSettings& operator=(const GradientSettings&);
    GradientSettings& operator=(GradientSettings&&) noexcept;
    ~GradientSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
