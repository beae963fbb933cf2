#include "Proc/EffectSettings/DeepLumaUpscalerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepLumaUpscaler, DeepLumaUpscalerSettings>;

DeepLumaUpscalerSettings::~DeepLumaUpscalerSettings() = default;

} // namespace Ombrel::PhotoCore
