#ifndef OMBREL_PROC_EFFECT_SETTINGS_SPLIT_TONING_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_SPLIT_TONING_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectSplitToning.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API SplitToningSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectSplitToning, SplitToningSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
