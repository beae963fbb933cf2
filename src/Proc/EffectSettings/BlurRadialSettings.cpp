#include "Proc/EffectSettings/BlurRadialSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBlurRadial, BlurRadialSettings>;

BlurRadialSettings::~BlurRadialSettings() = default;

} // namespace Ombrel::PhotoCore
