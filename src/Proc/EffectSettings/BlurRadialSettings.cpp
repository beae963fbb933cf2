#include "Proc/EffectSettings/BlurRadialSettings.h"

namespace Ombrel::PhotoCore
{

BlurRadialSettings::BlurRadialSettings() = default;
BlurRadialSettings::BlurRadialSettings(const BlurRadialSettings&) = default;
BlurRadialSettings::BlurRadialSettings(BlurRadialSettings&&) noexcept = default;
BlurRadialSettings& BlurRadialSettings::operator=(const BlurRadialSettings&) = default;
BlurRadialSettings& BlurRadialSettings::operator=(BlurRadialSettings&&) noexcept = default;
BlurRadialSettings::~BlurRadialSettings() = default;

const std::string& BlurRadialSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
