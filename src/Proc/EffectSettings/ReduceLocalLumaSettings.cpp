#include "Proc/EffectSettings/ReduceLocalLumaSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectReduceLocalLuma, ReduceLocalLumaSettings>;

ReduceLocalLumaSettings::~ReduceLocalLumaSettings() = default;

} // namespace Ombrel::PhotoCore
