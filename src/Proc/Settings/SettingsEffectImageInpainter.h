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
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// `neuralMode` starts at 1, unlike in the base.
    SettingsEffectImageInpainter();
};

} // namespace Ombrel::Proc

#endif
