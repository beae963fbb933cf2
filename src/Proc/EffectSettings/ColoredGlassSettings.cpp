#include "Proc/EffectSettings/ColoredGlassSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColoredGlass, ColoredGlassSettings>;

ColoredGlassSettings::~ColoredGlassSettings() = default;

} // namespace Ombrel::PhotoCore
