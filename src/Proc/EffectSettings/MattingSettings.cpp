#include "Proc/EffectSettings/MattingSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectMatting, MattingSettings>;

MattingSettings::~MattingSettings() = default;

} // namespace Ombrel::PhotoCore
