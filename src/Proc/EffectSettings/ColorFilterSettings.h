#ifndef OMBREL_PROC_EFFECT_SETTINGS_COLOR_FILTER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_COLOR_FILTER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectColorFilter.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ColorFilterSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectColorFilter, ColorFilterSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
