#include "Proc/EffectSettings/EmptySettings.h"

namespace Ombrel::PhotoCore
{

EmptySettings::EmptySettings() = default;
EmptySettings::EmptySettings(const EmptySettings&) = default;
EmptySettings::EmptySettings(EmptySettings&&) noexcept = default;
EmptySettings& EmptySettings::operator=(const EmptySettings&) = default;
EmptySettings& EmptySettings::operator=(EmptySettings&&) noexcept = default;
EmptySettings::~EmptySettings() = default;

const std::string& EmptySettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool EmptySettings::operator==(const EmptySettings&) const
{
    return true;
}

} // namespace Ombrel::PhotoCore
