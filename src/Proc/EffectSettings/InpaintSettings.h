#ifndef OMBREL_PROC_EFFECT_SETTINGS_INPAINT_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_INPAINT_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectInpaint.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API InpaintSettings : public EffectSettingsTwoInputReflection<Proc::SettingsEffectInpaint, InpaintSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
