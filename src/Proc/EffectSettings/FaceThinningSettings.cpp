#include "Proc/EffectSettings/FaceThinningSettings.h"

namespace Ombrel::PhotoCore
{

FaceThinningSettings::FaceThinningSettings() = default;
FaceThinningSettings::FaceThinningSettings(const FaceThinningSettings&) = default;
FaceThinningSettings::FaceThinningSettings(FaceThinningSettings&&) noexcept = default;
FaceThinningSettings& FaceThinningSettings::operator=(const FaceThinningSettings&) = default;
FaceThinningSettings& FaceThinningSettings::operator=(FaceThinningSettings&&) noexcept = default;
FaceThinningSettings::~FaceThinningSettings() = default;

const std::string& FaceThinningSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
