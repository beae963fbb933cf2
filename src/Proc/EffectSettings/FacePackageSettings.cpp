#include "Proc/EffectSettings/FacePackageSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<SettingsEffectFacePackage, FacePackageSettings>;

const std::string& FacePackageSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
