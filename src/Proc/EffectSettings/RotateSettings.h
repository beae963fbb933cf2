#ifndef OMBREL_PROC_EFFECT_SETTINGS_ROTATE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_ROTATE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectRotate.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API RotateSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectRotate, RotateSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
