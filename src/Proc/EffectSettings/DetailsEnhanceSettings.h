#ifndef OMBREL_PROC_EFFECT_SETTINGS_DETAILS_ENHANCE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DETAILS_ENHANCE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDetailsEnhance.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DetailsEnhanceSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDetailsEnhance, DetailsEnhanceSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

    /// What the record says.
    bool IsEmpty() const override;
};

} // namespace Ombrel::PhotoCore

#endif
