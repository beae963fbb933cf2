#include "Proc/EffectSettings/ColorFilterSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColorFilter, ColorFilterSettings>;

ColorFilterSettings::~ColorFilterSettings() = default;

} // namespace Ombrel::PhotoCore
