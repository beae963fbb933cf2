#include "Proc/EffectSettings/DeepImageEnhancerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepImageEnhancer, DeepImageEnhancerSettings>;

DeepImageEnhancerSettings::~DeepImageEnhancerSettings() = default;

} // namespace Ombrel::PhotoCore
