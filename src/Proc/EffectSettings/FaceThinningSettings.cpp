#include "Proc/EffectSettings/FaceThinningSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectFaceThinning, FaceThinningSettings>;

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
