#include "Proc/EffectSettings/BlurBokehSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBlurBokeh, BlurBokehSettings>;

BlurBokehSettings::~BlurBokehSettings() = default;

} // namespace Ombrel::PhotoCore
