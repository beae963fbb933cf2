#include "Proc/EffectSettings/TextureSettings.h"

namespace Ombrel::PhotoCore
{

TextureSettings::TextureSettings() = default;
TextureSettings::TextureSettings(const TextureSettings&) = default;
TextureSettings::TextureSettings(TextureSettings&&) noexcept = default;
TextureSettings& TextureSettings::operator=(const TextureSettings&) = default;
TextureSettings& TextureSettings::operator=(TextureSettings&&) noexcept = default;
TextureSettings::~TextureSettings() = default;

const std::string& TextureSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
