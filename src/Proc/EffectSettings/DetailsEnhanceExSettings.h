#ifndef OMBREL_PROC_EFFECT_SETTINGS_DETAILS_ENHANCE_EX_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DETAILS_ENHANCE_EX_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDetailsEnhanceEx.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DetailsEnhanceExSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDetailsEnhanceEx, DetailsEnhanceExSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
