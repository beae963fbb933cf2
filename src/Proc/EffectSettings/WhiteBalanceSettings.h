#ifndef OMBREL_PROC_EFFECT_SETTINGS_WHITE_BALANCE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_WHITE_BALANCE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectWhiteBalance.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API WhiteBalanceSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectWhiteBalance, WhiteBalanceSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
