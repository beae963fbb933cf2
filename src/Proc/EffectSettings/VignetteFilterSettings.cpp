#include "Proc/EffectSettings/VignetteFilterSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectVignetteFilter, VignetteFilterSettings>;

VignetteFilterSettings::~VignetteFilterSettings() = default;

} // namespace Ombrel::PhotoCore
