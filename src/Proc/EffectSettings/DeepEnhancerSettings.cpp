#include "Proc/EffectSettings/DeepEnhancerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepEnhancer, DeepEnhancerSettings>;

DeepEnhancerSettings::~DeepEnhancerSettings() = default;

} // namespace Ombrel::PhotoCore
