#ifndef OMBREL_PROC_EFFECT_SETTINGS_COLOR_REDUCE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_COLOR_REDUCE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectColorReduce.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ColorReduceSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectColorReduce, ColorReduceSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
