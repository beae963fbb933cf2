#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_IMAGE_INPAINTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_IMAGE_INPAINTER_H

#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectImageInpainter : public SettingsRecord<SettingsEffectImageInpainter, BaseSettingsNeural>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_IMAGE_INPAINTER";
    static const std::string CLASS_ID;

    /// `neuralMode` starts at 1, unlike in the base.
    SettingsEffectImageInpainter();
    ~SettingsEffectImageInpainter() override;
};

} // namespace Ombrel::Proc

#endif
