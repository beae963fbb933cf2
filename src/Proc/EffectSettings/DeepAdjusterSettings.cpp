#include "Proc/EffectSettings/DeepAdjusterSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepAdjuster, DeepAdjusterSettings>;

DeepAdjusterSettings::~DeepAdjusterSettings() = default;

} // namespace Ombrel::PhotoCore
