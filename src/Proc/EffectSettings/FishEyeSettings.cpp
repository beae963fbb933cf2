#include "Proc/EffectSettings/FishEyeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectFishEye, FishEyeSettings>;

FishEyeSettings::~FishEyeSettings() = default;

} // namespace Ombrel::PhotoCore
