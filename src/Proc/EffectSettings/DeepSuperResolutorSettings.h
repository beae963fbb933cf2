#ifndef OMBREL_PROC_EFFECT_SETTINGS_DEEP_SUPER_RESOLUTOR_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DEEP_SUPER_RESOLUTOR_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDeepSuperResolutor.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DeepSuperResolutorSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDeepSuperResolutor, DeepSuperResolutorSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
