#include "Proc/EffectSettings/EmbossSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectEmboss, EmbossSettings>;

EmbossSettings::~EmbossSettings() = default;

} // namespace Ombrel::PhotoCore
