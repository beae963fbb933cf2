#include "Proc/EffectSettings/FacePackageSettings.h"

namespace Ombrel::PhotoCore
{

FacePackageSettings::FacePackageSettings() = default;
FacePackageSettings::FacePackageSettings(const FacePackageSettings&) = default;
FacePackageSettings::FacePackageSettings(FacePackageSettings&&) noexcept = default;
FacePackageSettings& FacePackageSettings::operator=(const FacePackageSettings&) = default;
FacePackageSettings& FacePackageSettings::operator=(FacePackageSettings&&) noexcept = default;
FacePackageSettings::~FacePackageSettings() = default;

const std::string& FacePackageSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
