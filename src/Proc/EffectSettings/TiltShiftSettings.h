#ifndef OMBREL_PROC_EFFECT_SETTINGS_TILT_SHIFT_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_TILT_SHIFT_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectTiltShift.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API TiltShiftSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectTiltShift, TiltShiftSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
