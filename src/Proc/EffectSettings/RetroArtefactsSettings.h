#ifndef OMBREL_PROC_EFFECT_SETTINGS_RETRO_ARTEFACTS_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_RETRO_ARTEFACTS_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectRetroArtefacts.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API RetroArtefactsSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectRetroArtefacts, RetroArtefactsSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
