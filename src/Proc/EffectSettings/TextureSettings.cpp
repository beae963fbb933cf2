#include "Proc/EffectSettings/TextureSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectTexture, TextureSettings>;

TextureSettings::~TextureSettings() = default;

} // namespace Ombrel::PhotoCore
