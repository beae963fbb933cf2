#include "Proc/EffectSettings/BlackWhiteSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectBlackWhite, BlackWhiteSettings>;

BlackWhiteSettings::~BlackWhiteSettings() = default;

} // namespace Ombrel::PhotoCore
