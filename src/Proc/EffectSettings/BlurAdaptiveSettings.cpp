#include "Proc/EffectSettings/BlurAdaptiveSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBlurAdaptive, BlurAdaptiveSettings>;

BlurAdaptiveSettings::~BlurAdaptiveSettings() = default;

} // namespace Ombrel::PhotoCore
