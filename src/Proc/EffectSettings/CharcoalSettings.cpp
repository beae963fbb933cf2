#include "Proc/EffectSettings/CharcoalSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectCharcoal, CharcoalSettings>;

CharcoalSettings::~CharcoalSettings() = default;

} // namespace Ombrel::PhotoCore
