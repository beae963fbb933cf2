#include "Proc/EffectSettings/ColorReduceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColorReduce, ColorReduceSettings>;

ColorReduceSettings::~ColorReduceSettings() = default;

} // namespace Ombrel::PhotoCore
