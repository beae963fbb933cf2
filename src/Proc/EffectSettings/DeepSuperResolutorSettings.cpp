#include "Proc/EffectSettings/DeepSuperResolutorSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepSuperResolutor, DeepSuperResolutorSettings>;

DeepSuperResolutorSettings::~DeepSuperResolutorSettings() = default;

} // namespace Ombrel::PhotoCore
