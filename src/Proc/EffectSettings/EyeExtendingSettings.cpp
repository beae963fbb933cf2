#include "Proc/EffectSettings/EyeExtendingSettings.h"

namespace Ombrel::PhotoCore
{

EyeExtendingSettings::EyeExtendingSettings() = default;
EyeExtendingSettings::EyeExtendingSettings(const EyeExtendingSettings&) = default;
EyeExtendingSettings::EyeExtendingSettings(EyeExtendingSettings&&) noexcept = default;
EyeExtendingSettings& EyeExtendingSettings::operator=(const EyeExtendingSettings&) = default;
EyeExtendingSettings& EyeExtendingSettings::operator=(EyeExtendingSettings&&) noexcept = default;
EyeExtendingSettings::~EyeExtendingSettings() = default;

const std::string& EyeExtendingSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
