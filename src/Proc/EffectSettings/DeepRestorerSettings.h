#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_RESTORER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_RESTORER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepRestorer.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepRestorerSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepRestorer, DeepRestorerSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
