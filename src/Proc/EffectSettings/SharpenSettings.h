#ifndef OMBREL_PROC_EFFECT_SETTINGS_SHARPEN_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_SHARPEN_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectSharpen.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API SharpenSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectSharpen, SharpenSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
