#include "Proc/EffectSettings/FaceDetectionSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& FaceDetectionSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
