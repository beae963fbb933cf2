#ifndef OMBREL_PROC_EFFECT_SETTINGS_COLOR_BALANCE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_COLOR_BALANCE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectColorBalance.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ColorBalanceSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectColorBalance, ColorBalanceSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

    /// What the record says.
    bool IsEmpty() const override;
};

} // namespace Ombrel::PhotoCore

#endif
