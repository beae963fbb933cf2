#include "Proc/EffectSettings/BlurBokehSettings.h"

namespace Ombrel::PhotoCore
{

BlurBokehSettings::BlurBokehSettings() = default;
BlurBokehSettings::BlurBokehSettings(const BlurBokehSettings&) = default;
BlurBokehSettings::BlurBokehSettings(BlurBokehSettings&&) noexcept = default;
BlurBokehSettings& BlurBokehSettings::operator=(const BlurBokehSettings&) = default;
BlurBokehSettings& BlurBokehSettings::operator=(BlurBokehSettings&&) noexcept = default;
BlurBokehSettings::~BlurBokehSettings() = default;

const std::string& BlurBokehSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
