#ifndef OMBREL_PROC_EFFECT_SETTINGS_POP_ART_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_POP_ART_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectPopArt.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API PopArtSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectPopArt, PopArtSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
