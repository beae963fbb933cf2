#ifndef OMBREL_PROC_EFFECT_SETTINGS_SEPIA_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_SEPIA_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectSepia.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API SepiaSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectSepia, SepiaSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
