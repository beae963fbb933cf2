#include "Proc/EffectSettings/SharpenSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectSharpen, SharpenSettings>;

SharpenSettings::~SharpenSettings() = default;

} // namespace Ombrel::PhotoCore
