#include "Proc/EffectSettings/VignetteSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectVignette, VignetteSettings>;

VignetteSettings::~VignetteSettings() = default;

} // namespace Ombrel::PhotoCore
