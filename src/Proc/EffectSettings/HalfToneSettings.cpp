#include "Proc/EffectSettings/HalfToneSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectHalfTone, HalfToneSettings>;

HalfToneSettings::~HalfToneSettings() = default;

} // namespace Ombrel::PhotoCore
