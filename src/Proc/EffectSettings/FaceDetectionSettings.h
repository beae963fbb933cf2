#ifndef OMBREL_PROC_EFFECT_SETTINGS_FACE_DETECTION_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_FACE_DETECTION_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectFaceDetection.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API FaceDetectionSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectFaceDetection, FaceDetectionSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
