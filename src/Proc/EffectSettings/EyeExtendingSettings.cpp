#include "Proc/EffectSettings/EyeExtendingSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectEyeExtending, EyeExtendingSettings>;

EyeExtendingSettings::~EyeExtendingSettings() = default;

} // namespace Ombrel::PhotoCore
