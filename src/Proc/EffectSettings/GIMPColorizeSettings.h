#ifndef OMBREL_PROC_EFFECT_SETTINGS_GIMP_COLORIZE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GIMP_COLORIZE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGIMPColorize.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GIMPColorizeSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectGIMPColorize, GIMPColorizeSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
