#ifndef OMBREL_PROC_EFFECT_SETTINGS_GUIDED_FILTER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GUIDED_FILTER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGuidedFilter.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GuidedFilterSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectGuidedFilter, GuidedFilterSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
