#include "Proc/EffectSettings/RemoveBackgroundSettings.h"

namespace Ombrel::PhotoCore
{

RemoveBackgroundSettings::RemoveBackgroundSettings() = default;
RemoveBackgroundSettings::RemoveBackgroundSettings(const RemoveBackgroundSettings&) = default;
RemoveBackgroundSettings::RemoveBackgroundSettings(RemoveBackgroundSettings&&) noexcept = default;
RemoveBackgroundSettings& RemoveBackgroundSettings::operator=(const RemoveBackgroundSettings&) = default;
RemoveBackgroundSettings& RemoveBackgroundSettings::operator=(RemoveBackgroundSettings&&) noexcept = default;
RemoveBackgroundSettings::~RemoveBackgroundSettings() = default;

const std::string& RemoveBackgroundSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
