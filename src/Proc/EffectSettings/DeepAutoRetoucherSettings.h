#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_AUTO_RETOUCHER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_AUTO_RETOUCHER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepAutoRetoucher.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepAutoRetoucherSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepAutoRetoucher, DeepAutoRetoucherSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
