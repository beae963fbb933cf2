#ifndef OMBREL_PROC_EFFECT_SETTINGS_MATTING_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_MATTING_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectMatting.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API MattingSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectMatting, MattingSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
