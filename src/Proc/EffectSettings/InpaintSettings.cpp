#include "Proc/EffectSettings/InpaintSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectInpaint, InpaintSettings>;

InpaintSettings::~InpaintSettings() = default;

} // namespace Ombrel::PhotoCore
