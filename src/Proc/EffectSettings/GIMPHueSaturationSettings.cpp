#include "Proc/EffectSettings/GIMPHueSaturationSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPHueSaturation, GIMPHueSaturationSettings>;

GIMPHueSaturationSettings::~GIMPHueSaturationSettings() = default;

} // namespace Ombrel::PhotoCore
