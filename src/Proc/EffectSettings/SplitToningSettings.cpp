#include "Proc/EffectSettings/SplitToningSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectSplitToning, SplitToningSettings>;

SplitToningSettings::~SplitToningSettings() = default;

} // namespace Ombrel::PhotoCore
