#ifndef OMBREL_PROC_EFFECT_SETTINGS_SEGMENTATION_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_SEGMENTATION_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectSegmentation.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API SegmentationSettings
    : public EffectSettingsTwoInputReflection<Proc::SettingsEffectSegmentation, SegmentationSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
