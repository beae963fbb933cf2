#include "Proc/EffectSettings/RemoveBackgroundSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectRemoveBackground, RemoveBackgroundSettings>;

RemoveBackgroundSettings::~RemoveBackgroundSettings() = default;

} // namespace Ombrel::PhotoCore
