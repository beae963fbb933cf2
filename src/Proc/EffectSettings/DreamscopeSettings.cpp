#include "Proc/EffectSettings/DreamscopeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDreamscope, DreamscopeSettings>;

DreamscopeSettings::~DreamscopeSettings() = default;

} // namespace Ombrel::PhotoCore
