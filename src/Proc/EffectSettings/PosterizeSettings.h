#ifndef OMBREL_PROC_EFFECT_SETTINGS_POSTERIZE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_POSTERIZE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectPosterize.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API PosterizeSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectPosterize, PosterizeSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
