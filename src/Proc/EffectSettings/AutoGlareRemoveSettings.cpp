#include "Proc/EffectSettings/AutoGlareRemoveSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAutoGlareRemove, AutoGlareRemoveSettings>;

AutoGlareRemoveSettings::~AutoGlareRemoveSettings() = default;

} // namespace Ombrel::PhotoCore
