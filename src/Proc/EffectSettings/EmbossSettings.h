#ifndef OMBREL_PROC_EFFECT_SETTINGS_EMBOSS_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_EMBOSS_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectEmboss.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API EmbossSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectEmboss, EmbossSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
