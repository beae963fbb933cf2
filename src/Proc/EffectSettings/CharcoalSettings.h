#ifndef OMBREL_PROC_EFFECT_SETTINGS_CHARCOAL_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_CHARCOAL_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectCharcoal.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API CharcoalSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectCharcoal, CharcoalSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
