#ifndef OMBREL_PROC_EFFECT_SETTINGS_IMAGE_INPAINTER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_IMAGE_INPAINTER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectImageInpainter.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ImageInpainterSettings
    : public EffectSettingsTwoInputReflection<Proc::SettingsEffectImageInpainter, ImageInpainterSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
