#ifndef OMBREL_PROC_EFFECT_SETTINGS_REDUCE_LOCAL_LUMA_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_REDUCE_LOCAL_LUMA_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectReduceLocalLuma.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ReduceLocalLumaSettings
    : public EffectSettingsTwoInputReflection<Proc::SettingsEffectReduceLocalLuma, ReduceLocalLumaSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
