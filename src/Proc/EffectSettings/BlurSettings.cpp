#include "Proc/EffectSettings/BlurSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBlur, BlurSettings>;

BlurSettings::~BlurSettings() = default;

} // namespace Ombrel::PhotoCore
