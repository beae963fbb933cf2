#include "Proc/EffectSettings/ImplodeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectImplode, ImplodeSettings>;

ImplodeSettings::~ImplodeSettings() = default;

} // namespace Ombrel::PhotoCore
