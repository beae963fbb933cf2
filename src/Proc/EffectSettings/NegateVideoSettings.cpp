#include "Proc/EffectSettings/NegateVideoSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectNegateVideo, NegateVideoSettings>;

NegateVideoSettings::~NegateVideoSettings() = default;

} // namespace Ombrel::PhotoCore
