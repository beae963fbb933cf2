#include "Proc/EffectSettings/BlendSettings.h"

namespace Ombrel::PhotoCore
{

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
