#include "Proc/EffectSettings/ReplaceChromaSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectReplaceChroma, ReplaceChromaSettings>;

ReplaceChromaSettings::~ReplaceChromaSettings() = default;

} // namespace Ombrel::PhotoCore
