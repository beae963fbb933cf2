#include "Proc/EffectSettings/BlurMotionSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBlurMotion, BlurMotionSettings>;

BlurMotionSettings::~BlurMotionSettings() = default;

} // namespace Ombrel::PhotoCore
