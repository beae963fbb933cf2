#include "Proc/EffectSettings/FaceDetectionSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectFaceDetection, FaceDetectionSettings>;

FaceDetectionSettings::~FaceDetectionSettings() = default;

} // namespace Ombrel::PhotoCore
