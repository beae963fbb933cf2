#include "Proc/EffectSettings/BlurRadialSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBlurRadial, BlurRadialSettings>;

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
