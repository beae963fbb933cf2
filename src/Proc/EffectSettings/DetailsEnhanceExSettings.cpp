#include "Proc/EffectSettings/DetailsEnhanceExSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDetailsEnhanceEx, DetailsEnhanceExSettings>;

DetailsEnhanceExSettings::~DetailsEnhanceExSettings() = default;

} // namespace Ombrel::PhotoCore
