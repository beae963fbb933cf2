#ifndef OMBREL_PROC_EFFECT_SETTINGS_NEGATE_VIDEO_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_NEGATE_VIDEO_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectNegateVideo.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API NegateVideoSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectNegateVideo, NegateVideoSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
