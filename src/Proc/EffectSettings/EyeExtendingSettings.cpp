#include "Proc/EffectSettings/EyeExtendingSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectEyeExtending, EyeExtendingSettings>;

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
