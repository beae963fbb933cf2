#ifndef OMBREL_PROC_EFFECT_SETTINGS_BALANCE_LUMA_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BALANCE_LUMA_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectBalanceLuma.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API BalanceLumaSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectBalanceLuma, BalanceLumaSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

    /// What the record says.
    bool IsEmpty() const override;
};

} // namespace Ombrel::PhotoCore

#endif
