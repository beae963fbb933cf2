#ifndef OMBREL_PROC_EFFECT_SETTINGS_COLOR_BALANCE_AUTO_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_COLOR_BALANCE_AUTO_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectColorBalanceAuto.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ColorBalanceAutoSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectColorBalanceAuto, ColorBalanceAutoSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

    /// What the record says.
    bool IsEmpty() const override;
};

} // namespace Ombrel::PhotoCore

#endif
