#include "Proc/EffectSettings/BlendSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectImageBlender, BlendSettings>;

BlendSettings::BlendSettings() = default;
BlendSettings::BlendSettings(const BlendSettings&) = default;
BlendSettings::BlendSettings(BlendSettings&&) noexcept = default;
BlendSettings& BlendSettings::operator=(const BlendSettings&) = default;
BlendSettings& BlendSettings::operator=(BlendSettings&&) noexcept = default;
BlendSettings::~BlendSettings() = default;

const std::string& BlendSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
