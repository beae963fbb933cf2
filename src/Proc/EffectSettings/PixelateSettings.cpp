#include "Proc/EffectSettings/PixelateSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectPixelate, PixelateSettings>;

PixelateSettings::~PixelateSettings() = default;

} // namespace Ombrel::PhotoCore
