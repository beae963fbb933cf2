#include "Proc/EffectSettings/ColorMixBurnSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColorMixBurn, ColorMixBurnSettings>;

ColorMixBurnSettings::~ColorMixBurnSettings() = default;

} // namespace Ombrel::PhotoCore
