#include "Proc/EffectSettings/AdjusterSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAdjuster, AdjusterSettings>;

AdjusterSettings::~AdjusterSettings() = default;

} // namespace Ombrel::PhotoCore
